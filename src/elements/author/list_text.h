#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <span>
#include <vector>

#include "elements/author/words.h"

/// The text of a list of persons while it is being read.
namespace quorvel::authorwords {

/// What a piece between two commas can be.
enum class PieceKind : std::uint8_t {
    /// Initials only: "J. A.", "JA". The first names of a reversed name.
    Initials,
    /// First names with an initial at the end: "Brendan D."
    EndsWithInitial,
    /// A compact name, its initials without full stops at the end: "van der Meer MA".
    Compact,
    /// A name with initials before its end: "J. E. Carmichael", "Brendan D. Murray".
    Direct,
    /// One word: "Smith".
    Single,
    /// Several words without initials: "Nancy Lynch", "van Rooij".
    Multiple,
    /// "Jr.", "III".
    Postfix,
};

/// How the names of a list stand.
enum class ListForm : std::uint8_t {
    /// First names first.
    Direct,
    /// The first person last name first, the others not.
    FirstReversed,
    /// Last names first.
    Reversed,
};

/// A run of words between two separators.
struct Piece {
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
    Separator before = Separator::Comma;
    PieceKind kind = PieceKind::Single;
    bool isInstitution = false;
};

using WordSpan = std::span<const Word>;

/// A person as parts of the text that was read.
struct Person {
    /// Moved in front of the last name: the "al-" of "Hakim, Tawfiq al-".
    TextView prefix;
    TextView last;
    TextView first;
    /// A bracketed part that goes behind the first names.
    TextView supplied;
    TextView postfix;
    bool isGroup = false;
    /// The whole text is in capitals, which say nothing then.
    bool isShouted = false;
};

/// Owns the text, its words and its pieces. The arrays of an ordinary list stay inside the object.
class AuthorListText {
public:
    // The buffer is raw memory. NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init)
    explicit AuthorListText(Text text) { assign(std::move(text)); }

    const Text& text() const { return mText; }
    /// A new text, split anew.
    void assign(Text text);
    /// Whether the text has one of these features (see Feature).
    bool has(std::uint32_t features) const { return (mFeatures & features) != 0; }
    bool isShouted() const { return mIsShouted; }

    Words& words() { return mWords; }
    const Words& words() const { return mWords; }
    WordSpan wordsOf(const Piece& piece) const {
        return WordSpan(mWords).subspan(piece.begin, piece.end - piece.begin);
    }

    std::pmr::vector<Piece>& pieces() { return mPieces; }
    const std::pmr::vector<Piece>& pieces() const { return mPieces; }
    /// The piece that is read next.
    std::size_t nextPiece = 0;

    // What is known of the form of the list: by its first name, and by the persons read so far.
    bool isCompact = false;
    bool hasDirect = false;
    /// The form in which the pieces from `formBegin` to `formEnd` stand; see list_form.h.
    ListForm form = ListForm::Direct;
    std::size_t formBegin = 0;
    std::size_t formEnd = 0;

private:
    static constexpr std::size_t kUsualWords = 48;
    static constexpr std::size_t kUsualPieces = 24;

    // Aligned as its contents are, and no more: std::max_align_t differs between translation units of 32-bit
    // MinGW, and a 32-bit host promises a stack of four bytes' alignment only.
    alignas(Word) alignas(
        Piece) std::array<std::byte, kUsualWords * sizeof(Word) + kUsualPieces * sizeof(Piece) + 64> mBuffer;
    std::pmr::monotonic_buffer_resource mMemory{mBuffer.data(), mBuffer.size()};
    Text mText;
    Words mWords{&mMemory};
    std::pmr::vector<Piece> mPieces{&mMemory};
    std::uint32_t mFeatures = 0;
    bool mIsShouted = false;
};

/// The kind of a piece that holds these words.
PieceKind kindOf(WordSpan words);

/// A number in a name, which only institutions have: "Study Group 8". "2nd" is none.
bool isBareNumber(const Word& word);

/// Whether the word at this index tells an institution. "Co." does behind a name only ("CO Callender").
bool isInstitutionalAt(WordSpan words, std::size_t index);

/// Whether a word among several could be an institution's; without one the words are none. A single
/// word is a last name or needs no other treatment than one.
bool hasInstitutionalWord(WordSpan words);

/// Whether the word at this index is a postfix of the name before it. "II", "III" and "IV" are, behind a
/// whole name or its initials; the other Roman numerals are initials, and so are "JR" and "SR" behind a
/// last name ("Smith JR").
/// @param nameLength how many words make a whole name; one in the halves of a reversed name ("Hal III")
bool isPostfixAt(WordSpan words, std::size_t index, std::size_t nameLength = 2);

/// The words without the postfixes at their end.
WordSpan withoutPostfix(WordSpan words, std::size_t nameLength = 2);

/// A postfix as all styles but one write it: "Jr" of an AMA list is "Jr."
TextView writtenPostfix(TextView postfix);

/// The text of the words, from the first's begin to the last's end; empty for no words.
TextView textOf(WordSpan words);

}  // namespace quorvel::authorwords
