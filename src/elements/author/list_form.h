#pragma once

#include <cstddef>

#include "elements/author/list_text.h"

namespace quorvel::authorwords {

/// Settles in which form the persons stand from this piece on to the next semicolon, where a comma alone does not
/// tell: "Ben Bernanke, Martin Gertler, and ..." are two persons, "García Márquez, Gabriel José, and ..." is one.
/// The whole list decides: each form is charged with what speaks against it in every piece, and the cheapest is
/// the list's.
void settleForm(AuthorListText& text, std::size_t firstPiece);

}  // namespace quorvel::authorwords
