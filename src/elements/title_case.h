#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "core/text.h"

/// Capitalisation of titles. A title is gone through once, word by word; only letter case changes, so
/// that a place in the result is the same place in the title.
///
///   the origins of the cold war        heading      The Origins of the Cold War
///   The Origins of the Cold War        sentence     The origins of the Cold War
///
/// Rules: MLA 7 3.6.1, Turabian 7 22.3.1 (headings), APA 6 4.15, AMA 10 10.2 (sentences). The lists of
/// words are title_words.h, those of names title_names.h.
namespace quorvel::titlecase {

struct Rules {
    bool isHeading = true;
    /// The later parts of a hyphenated word are capitalised in headings.
    bool capitalizeHyphenatedWord = true;
    /// The first word behind ": " is capitalised in sentences; in headings it always is.
    bool capitalizeSubtitle = true;
};

/// A part of a text.
struct Range {
    std::size_t begin = 0;
    std::size_t end = 0;
    friend bool operator==(const Range&, const Range&) = default;
};

struct CasedTitle {
    Text text;
    /// The words that changed, without their punctuation; what a form highlights.
    std::vector<Range> changed;
};

/// The title as the rules write it. Sentence case changes only a title that stands in heading case:
/// one in sentence case shows itself what its names are.
CasedTitle casedTitle(TextView title, const Rules& rules);

/// Whether most of the words that a heading capitalises and a sentence does not have a capital.
bool standsInHeadingCase(TextView title);

/// A word of a title.
struct Word {
    /// Its letters and digits, without the punctuation around it.
    Range core;
    /// The number of its piece.
    std::size_t piece = 0;
    bool isFirst = false;
    bool isLast = false;
    /// The first word of a piece behind ": " or a dash, and not of the title.
    bool beginsSubtitle = false;
    /// The first word behind "; ", which begins no sentence.
    bool beginsClause = false;
};

/// The pieces of a title: what stands between ": ", ". ", "; ", "! " and "? ". A full stop behind an
/// initial or an abbreviation ends none ("E. coli", "vs. ", "U.S.S. "), and "; or, " is no end of its own.
std::vector<Range> piecesOf(TextView title);
/// The words of all pieces.
std::vector<Word> wordsOf(TextView title);

/// The same for a title whose words are known.
bool standsInHeadingCase(TextView title, const std::vector<Word>& words);

/// The parts of a word between hyphens, dashes and slashes.
std::vector<Range> partsOf(TextView text, Range word);

// Tests on a word.

/// All its letters are capitals, and there are two or more: "DNA", "U.S".
bool isAcronym(TextView word);
/// A capital behind the first letter, or a digit: "mRNA", "p53", "McDonald".
bool hasOwnCase(TextView word);
/// Ends in "'s" or "s'".
bool isPossessive(TextView word);
TextView withoutPossessive(TextView word);
bool isCapital(char16_t unit);
bool isSmallLetter(char16_t unit);

/// Whether the rules capitalise the first word of a piece.
bool capitalizesFirstWord(const Word& first, const Rules& rules);
/// The words of one piece after the other.
std::vector<std::span<const Word>> pieces(const std::vector<Word>& words);
/// One piece in heading or sentence case, in place. Sentence case takes a piece of a title that stands in
/// heading case (title_sentence.cpp).
void applyPiece(Text& text, std::span<const Word> piece, bool capitalizeFirstWord, const Rules& rules);
void applySentence(Text& text, std::span<const Word> piece, bool capitalizeFirstWord, const Rules& rules);
/// The words whose text differs.
std::vector<Range> changedWords(TextView before, TextView after, const std::vector<Word>& words);

/// Whether a full stop at this place belongs to its word: behind an initial or an abbreviation.
bool isStopOfWord(TextView text, std::size_t stop);

void capitalizeAt(Text& text, std::size_t index);
void lowerAt(Text& text, std::size_t index);

}  // namespace quorvel::titlecase
