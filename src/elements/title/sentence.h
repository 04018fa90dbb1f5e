#pragma once

#include <span>

#include "elements/title/text.h"

namespace quorvel::titlecase {

/// A piece of a title that stands in heading case, set as a sentence, in place: small letters but for names and what
/// has a case of its own.
/// @param text the title, its other pieces in either case
/// @param capitalizeFirstWord of the piece
/// @param capitalizeSubtitle the first word behind a dash inside the piece is capitalised
void applySentence(Text& text, const TitleText& title, std::span<Word> piece, bool capitalizeFirstWord,
                   bool capitalizeSubtitle);

/// Of a title that stands in sentence case only its first word, which gets a capital, and that of each subtitle, which
/// styles differ about: a capital, or a small letter but for a name.
void applyBeginnings(Text& text, TitleText& title, bool capitalizeSubtitle);

}  // namespace quorvel::titlecase
