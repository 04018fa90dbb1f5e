#pragma once

#include "core/text.h"

namespace quorvel::titlecase {

/// The title by which a note or an author-page citation names a work again (MLA 7 6.4.6, Turabian 7 16.4.1): without
/// its subtitle and leading article, and of a long one the first words, four at most, of which the last is no small
/// word.
Text shortTitle(TextView title);

}  // namespace quorvel::titlecase
