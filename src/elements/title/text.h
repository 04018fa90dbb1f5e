#pragma once

#include <array>
#include <cstddef>
#include <memory_resource>
#include <span>
#include <vector>

#include "core/letter_case.h"
#include "core/text.h"
#include "elements/words/lexicon.h"

/// A title as words. It is read once; everything else is decided from what is noted here.
namespace quorvel::titlecase {

/// A part of a text.
struct Range {
    std::size_t begin = 0;
    std::size_t end = 0;
    friend bool operator==(const Range&, const Range&) = default;
};

inline TextView slice(TextView text, Range range) {
    return text.substr(range.begin, range.end - range.begin);
}

/// A word of a title.
struct Word {
    Word(Range core, words::Known known, std::size_t piece)
        : core(core), name(core), known(known), knownName(known), piece(piece) {}

    /// Its letters and digits, without the punctuation around it.
    Range core;
    /// The same without "'s".
    Range name;
    /// What the lexicon knows of both.
    words::Known known;
    words::Known knownName;
    /// The number of its piece.
    std::size_t piece;
    bool isFirst = false;
    bool isLast = false;
    /// The first word of a piece behind ": " or a dash, and not of the title.
    bool beginsSubtitle = false;
    /// The first word behind "; ", which begins no sentence.
    bool beginsClause = false;
    /// Nothing but a blank stands between it and the word before in the same piece, or a full stop and a blank.
    bool isJoined = false;
    /// Has hyphens, dashes or slashes.
    bool isCompound = false;
    /// Has no capital.
    bool isLower = false;
    /// Has a capital behind the first letter, or a digit: "mRNA", "p53", "McDonald".
    bool hasOwnCase = false;
    /// Has letters beyond ASCII.
    bool hasAccents = false;

    /// Sentence case notes here what it finds: the word keeps its capital, being a name; it is part of a
    /// known name of several words, hyphens and all; it is a small word of one.
    bool isKept = false;
    bool isInPhrase = false;
    bool isSmallInPhrase = false;

    bool isPossessive() const { return name.end != core.end; }
};

/// A title and its words, which it reads. It borrows the title.
///
/// The pieces of a title are what stands between ": ", ". ", "; ", "! " and "? ". A full stop behind an
/// initial or an abbreviation ends none ("E. coli", "vs. ", "U.S.S. "), and "; or, " is no end of its own.
class TitleText {
    // Of most titles the letters and all words stand here, where they cost no memory of the heap.
    static constexpr std::size_t kRoom = 24 * sizeof(Word) + 160 * sizeof(char16_t);
    std::array<std::byte, kRoom> mRoom;
    std::pmr::monotonic_buffer_resource mMemory{mRoom.data(), mRoom.size()};

public:
    explicit TitleText(TextView title);

    TextView text;
    /// The same in lower case and with straight apostrophes, as the lexicon is asked.
    TextView lowered;
    std::pmr::vector<Word> words{&mMemory};
    /// The classes that any of the words has.
    titlewords::WordClasses classes = 0;
    /// Holds "\u0161", "trz" or "sz".
    bool hasForeignSpelling = false;

    TextView lower(Range range) const { return slice(lowered, range); }
    /// What the lexicon knows of a part of a word.
    words::Known find(Range part) const { return words::Lexicon::instance().find(slice(text, part), lower(part)); }
    /// The words of the piece that begins with this word.
    std::span<Word> pieceFrom(std::size_t word);

private:
    TextView inLowerCase(TextView title);
};

inline TitleText readTitle(TextView title) {
    return TitleText(title);
}

/// The parts of a word between hyphens, dashes and slashes, in place of what `parts` held.
void splitWord(TextView text, Range word, std::vector<Range>& parts);

// Tests on a word.

/// All its letters are capitals, and there are two or more: "DNA", "U.S".
bool isAcronym(TextView word);
/// A capital behind the first letter, or a digit.
bool hasOwnCase(TextView word);
/// A Greek letter by itself, which is a sign and stays as it is typed.
bool isGreekLetter(TextView word);
/// Ends in "'s".
bool isPossessive(TextView word);
TextView withoutPossessive(TextView word);
/// Whether a full stop at this place belongs to its word: behind an initial or an abbreviation.
bool isStopOfWord(TextView text, std::size_t stop);

inline void capitalizeAt(Text& text, std::size_t index) {
    text[index] = toUpper(text[index]);
}
inline void lowerAt(Text& text, std::size_t index) {
    text[index] = toLower(text[index]);
}

}  // namespace quorvel::titlecase
