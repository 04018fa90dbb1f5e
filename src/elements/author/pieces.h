#pragma once

#include <cstdint>

#include "elements/author/reader.h"

/// From the pieces of a list to persons: which pieces are one person, and in which order its names stand.
namespace quorvel::authorwords {

/// Reads the person at the list's next piece.
/// @param index how many persons were read before
/// @param treatTheRestAsResidue no more persons are taken
void parseAndRemoveAuthor(AuthorReading& reading, std::int16_t index, bool treatTheRestAsResidue);

}  // namespace quorvel::authorwords
