#pragma once

#include "elements/author/reader.h"

namespace quorvel::authorwords {

/// The words before or behind a person that name a part of a book.
inline constexpr TextView kChapterTypes[] = {u"Afterword.", u"Foreword.", u"Introduction.", u"Preface."};

/// Takes off what stands in the author's place and belongs to other elements.
void parseAndRemoveResidue(AuthorReading& reading);

}  // namespace quorvel::authorwords
