#pragma once

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <vector>

#include "core/letter_case.h"
#include "core/text.h"
#include "elements/author/lexicon.h"

/// A list of persons as words: the one pass over the text on which all rules about names stand.
namespace quorvel::authorwords {

/// What a word looks like.
enum class Shape : std::uint8_t {
    /// "Smith", "O'Neil", "al-Hakim", a word of a script without letter case.
    Name,
    /// "van", "of".
    Lower,
    /// "J.", "J.-P.", "A.T."
    Initial,
    /// "J", "JM", "C-C": one to five capitals without full stops.
    Capitals,
    /// "Wm.", "Yu."
    Abbreviation,
    Number,
    /// Nothing but signs: "&", "---".
    Mark,
};

/// What stands between a word and the one before it.
enum class Separator : std::uint8_t { Blank, Comma, Semicolon, And };

/// A word; its text lies in the text that was split.
struct Word {
    TextView text;
    std::uint32_t classes = kNoClass;
    Shape shape = Shape::Mark;
    Separator before = Separator::Blank;
    bool endsWithStop = false;
    bool isBracketed = false;

    bool is(std::uint32_t anyOf) const { return (classes & anyOf) != 0; }
    bool isInitials() const { return shape == Shape::Initial || shape == Shape::Capitals; }
    bool isLower() const { return shape == Shape::Lower; }
    bool isName() const { return shape == Shape::Name || shape == Shape::Abbreviation; }
};

using Words = std::pmr::vector<Word>;

/// Features of a text that decide which rules have to look at it at all, as bit flags.
enum Feature : std::uint32_t {
    kHasBracket = 1U << 0,
    kHasQuote = 1U << 1,
    kHasDigit = 1U << 2,
    kHasColon = 1U << 3,
    kHasDashes = 1U << 4,
    kHasEllipsis = 1U << 5,
    kHasSentenceBreak = 1U << 6,
    kHasSemicolon = 1U << 7,
    kHasTranslator = 1U << 8,
    kHasResidueWord = 1U << 9,
    kHasDiscussion = 1U << 10,
    kHasTag = 1U << 11,
    kHasEt = 1U << 12,
    kHasAnd = 1U << 13,
    /// The list begins like "Smith JA".
    kHasCompactName = 1U << 14,
};

/// Splits a cleaned text into words. Commas, semicolons and the blanks between words are gone; words of
/// a bracketed part stay one word ("[David Cornwell]").
/// @return the features of the text
std::uint32_t splitIntoWords(TextView text, Words& words);

/// What a single word looks like and what it may be; for texts that are not in a list.
Word wordOf(TextView text);

/// Whether no letter of the words is in lower case, but for the list's own words: capitals say nothing
/// then.
bool isShouted(const Words& words);

/// Whether the two letters stand for one sound of a name, which is one initial: "Yu", "Zh", "Ch".
constexpr bool isDigraph(char16_t capital, char16_t small) {
    switch (small) {
        case u'u':
        case u'a':
        case u'e':
        case u'o': return capital == u'Y' || capital == u'J';
        case u'h':
            return capital == u'C' || capital == u'K' || capital == u'S' || capital == u'T' || capital == u'Z' ||
                   capital == u'P';
        case u's': return capital == u'T';
        default: return false;
    }
}

/// "Smith, John. The" breaks after "John."; "St. John" and "J. Smith" do not break.
bool breaksSentence(const Word& word);

/// The text from one word's begin to another one's end.
TextView textOf(const Word& first, const Word& last);

}  // namespace quorvel::authorwords
