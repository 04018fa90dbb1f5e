#pragma once

#include "core/text.h"

namespace quorvel {

/// The title by which a note or an author-page citation names a work again (MLA 7 6.4.6, Turabian 7 16.4.1): without
/// its subtitle and leading article, and of a long one the first words, four at most, up to where a phrase ends:
/// before a preposition or conjunction, where there is one. A quotation inside it stays whole.
Text shortTitle(TextView title);

}  // namespace quorvel
