#pragma once

#include "elements/author/reader.h"

namespace quorvel::authorwords {

/// Takes the tags off that tell what the persons are: editors, compilers or translators.
void parseAndRemoveAnthology(AuthorReading& reading);

}  // namespace quorvel::authorwords
