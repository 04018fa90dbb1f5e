#pragma once

#include <span>

#include "elements/title/text.h"

namespace quorvel::titlecase {

/// Notes in a piece of a title which words keep their capital in a sentence, being names: by themselves, by what stands
/// beside them, or as part of a known name of several words. A hyphenated word is noted as a whole.
/// @param stoodInHeadingCase capitals in the title tell nothing, and a small word does; otherwise the reverse
void findNames(const TitleText& title, std::span<Word> piece, bool stoodInHeadingCase);

}  // namespace quorvel::titlecase
