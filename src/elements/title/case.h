#pragma once

#include <span>
#include <vector>

#include "core/text.h"
#include "elements/title/text.h"

/// Capitalisation of titles. Only letter case changes, so that a place in the result is the same place in
/// the title.
///
///   the origins of the cold war        heading      The Origins of the Cold War
///   The Origins of the Cold War        sentence     The origins of the Cold War
///
/// Rules: MLA 7 3.6.1, Turabian 7 22.3.1 (headings), APA 6 4.15, AMA 10 10.2 (sentences).
namespace quorvel::titlecase {

struct Rules {
    bool isHeading = true;
    /// The later parts of a hyphenated word are capitalised in headings.
    bool capitalizeHyphenatedWord = true;
    /// The first word behind ": " is capitalised in sentences; in headings it always is.
    bool capitalizeSubtitle = true;
};

struct CasedTitle {
    Text text;
    /// The words that changed, without their punctuation; what a form highlights.
    std::vector<Range> changed;
};

/// The title as the rules write it. Sentence case changes only a title that stands in heading case: one in
/// sentence case shows itself what its names are, and changes only where it and a subtitle begin.
CasedTitle casedTitle(TextView title, const Rules& rules);

/// Whether most of the words that a heading capitalises and a sentence does not have a capital.
bool standsInHeadingCase(const TitleText& title);

/// Whether the rules capitalise the first word of a piece.
bool capitalizesFirstWord(const Word& first, const Rules& rules);
/// One piece in heading or sentence case, in place. Sentence case takes a piece of a title that stands in
/// heading case (title/sentence.h).
/// @param text the title, its other pieces in either case
void applyPiece(Text& text, const TitleText& title, std::span<Word> piece, bool capitalizeFirstWord,
                const Rules& rules);
/// The words whose text differs.
std::vector<Range> changedWords(TextView before, TextView after, std::span<const Word> words);

}  // namespace quorvel::titlecase
