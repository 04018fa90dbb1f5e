#pragma once

#include "core/text.h"

namespace quorvel {

/// The title by which a note or an author-page citation names a work again (MLA 7 6.4.6, Turabian 7 16.4.1): without
/// its subtitle and leading article, and of a long one the first words, up to where a phrase ends: before a verb, a
/// mark, a preposition or conjunction; four words at most where one of them can be the last. It ends on no verb, small
/// word or adjective with its noun behind it. A quotation inside it stays whole.
Text shortTitle(TextView title);

}  // namespace quorvel
