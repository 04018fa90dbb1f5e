#include "elements/title/text.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "core/letter_case.h"

namespace quorvel::titlecase {

namespace {

constexpr char16_t kEmDash = u'\u2014';

constexpr TextView kForeignSpellings[] = {u"\u0161", u"trz", u"sz"};

// What a character is in a title.
enum UnitKind : std::uint8_t {
    kLetterOrDigit = 1,
    kDigit = 2,
    kCapital = 4,
    kPartBreak = 8,
    kBeyondAscii = 16,
    kForeignSign = 32,
    // Ends a word with what hangs on it: a blank, an em dash.
    kBetweenWords = 64,
};

constexpr std::array<std::uint8_t, 0x80> kAsciiKinds = [] {
    std::array<std::uint8_t, 0x80> kinds{};
    for (std::size_t unit = 0; unit < kinds.size(); ++unit) {
        const bool isSmall = unit >= u'a' && unit <= u'z';
        const bool isCapital = unit >= u'A' && unit <= u'Z';
        const bool isDigit = unit >= u'0' && unit <= u'9';
        kinds[unit] = static_cast<std::uint8_t>((isSmall || isCapital || isDigit ? kLetterOrDigit : 0) |
                                                (isCapital ? kCapital : 0) | (isDigit ? kDigit : 0));
    }
    kinds[u'-'] = kinds[u'/'] = kPartBreak;
    kinds[u' '] = kBetweenWords;
    kinds[u'z'] |= kForeignSign;
    kinds[u'Z'] |= kForeignSign;
    return kinds;
}();

std::uint8_t kindBeyondAscii(char16_t unit, char16_t lowered) {
    if (unit == kEmDash) {
        return kBetweenWords;
    }
    if (unit == kEnDash || unit == u'\u2010' || unit == u'\u2011') {
        return kPartBreak;
    }
    // Letters of scripts without case count, too: everything beyond Latin-1's signs that is no dash or mark.
    if (unit < 0xC0 || (unit >= 0x2000 && unit <= 0x206F)) {
        return 0;
    }
    return static_cast<std::uint8_t>(kLetterOrDigit | kBeyondAscii | (unit != lowered ? kCapital : 0) |
                                     (lowered == u'\u0161' ? kForeignSign : 0));
}

/// @param lowered the character in lower case
inline std::uint8_t kindOf(char16_t unit, char16_t lowered) {
    return unit < 0x80 ? kAsciiKinds[unit] : kindBeyondAscii(unit, lowered);
}

/// A small letter that is no foreign sign either.
bool isPlainLetter(char16_t unit) {
    return unit >= u'a' && unit < u'z';
}

bool isWordUnit(char16_t unit) {
    return (kindOf(unit, unit) & kLetterOrDigit) != 0;
}

bool isClosingMark(char16_t unit) {
    return unit == u'"' || unit == kRightDoubleQuotationMark || unit == u')';
}

/// Where the next piece begins when the blank at this place ends one, else 0.
std::size_t nextPiece(TextView text, TextView lowered, std::size_t blank) {
    // The mark may stand inside a quotation or parenthesis.
    std::size_t end = blank;
    while (end > 0 && isClosingMark(text[end - 1])) {
        --end;
    }
    switch (end > 0 ? text[end - 1] : u' ') {
        case u'.': return isStopOfWord(text, end - 1) ? 0 : blank + 1;
        case u':':
        case u'!':
        case u'?': return blank + 1;
        case u';': {
            // "Moby-Dick; or, The Whale".
            constexpr TextView kOr = u"or, ";
            const bool isOr = startsWith(lowered.substr(blank + 1), kOr);
            return blank + 1 + (isOr ? kOr.size() : 0);
        }
        default: return 0;
    }
}

/// Reads the words of a title, one after the other.
class Reader {
public:
    explicit Reader(TitleText& title) : mTitle(title), mText(title.text) {}

    void run() {
        constexpr std::size_t kUnitsOfWord = 5;
        mTitle.words.reserve(mText.size() / kUnitsOfWord + 2);
        std::size_t i = 0;
        while (i < mText.size()) {
            if (isWordUnit(mText[i])) {
                i = readWord(i);
                // Nearly always one blank and the next word.
                const bool isPlain = i + 1 < mText.size() && mText[i] == u' ' && isWordUnit(mText[i + 1]) &&
                                     isWordUnit(mText[i - 1]) && mNextPiece <= i;
                i += isPlain ? 1 : 0;
                continue;
            }
            // Behind a letter no piece ends.
            if (mText[i] == u' ' && i > 0 && !isWordUnit(mText[i - 1])) {
                const std::size_t next = nextPiece(mText, mTitle.lowered, i);
                mNextPiece = next != 0 ? next : mNextPiece;
            }
            mIsAfterDash = mIsAfterDash || mText[i] == kEmDash;
            ++i;
            if (i == mNextPiece) {
                endPiece();
                beginPiece(i);
            }
        }
        endPiece();
        // Few titles hold the letters in which these end.
        mTitle.hasForeignSpelling = (mKinds & kForeignSign) != 0 && containsOneOf(mTitle.lowered, kForeignSpellings);
    }

private:
    void beginPiece(std::size_t at) {
        ++mPiece;
        mIsFirst = true;
        mIsAfterDash = false;
        // What ended the piece before: a colon makes a subtitle, a semicolon no sentence.
        mMark = trim(mText.substr(0, at)).back();
    }

    void endPiece() {
        if (!mIsFirst) {
            // The "or," of "; or, " is no last word.
            Word& last = mTitle.words.back();
            last.isLast = last.core.end >= mText.size() || mText[last.core.end] != u',';
        }
    }

    /// @return the end of the word and of the marks behind it
    std::size_t readWord(std::size_t begin) {
        const std::uint8_t first = kindOf(mText[begin], mTitle.lowered[begin]);
        unsigned others = 0;
        unsigned othersOfCore = 0;
        std::size_t coreEnd = begin + 1;
        std::size_t end = begin + 1;
        for (; end < mText.size(); ++end) {
            // Nearly all are small letters, which say nothing more.
            const std::size_t letters = end;
            while (end < mText.size() && isPlainLetter(mText[end])) {
                ++end;
            }
            if (end > letters) {
                others |= kLetterOrDigit;
                othersOfCore = others;
                coreEnd = end;
            }
            if (end == mText.size()) {
                break;
            }
            const unsigned kind = kindOf(mText[end], mTitle.lowered[end]);
            if ((kind & kBetweenWords) != 0) {
                break;
            }
            others |= kind;
            // What stands behind the last letter is not part of the word.
            coreEnd = (kind & kLetterOrDigit) != 0 ? end + 1 : coreEnd;
            othersOfCore = (kind & kLetterOrDigit) != 0 ? others : othersOfCore;
        }
        const std::size_t wordBefore = mIsFirst ? begin : mTitle.words.back().core.end;
        const Range core = {begin, coreEnd};
        const std::size_t size = coreEnd - begin;
        const words::Known known = mLexicon.find({mText.data() + begin, size}, {mTitle.lowered.data() + begin, size});
        Word& word = mTitle.words.emplace_back(core, known, mPiece);
        if (mTitle.lowered[coreEnd - 1] == u's') {
            word.name.end = begin + withoutPossessive(slice(mText, core)).size();
            if (word.isPossessive()) {
                word.knownName = mTitle.find(word.name);
            }
        }
        mTitle.classes |= word.known.classes;
        mKinds |= first | others;
        word.isFirst = mIsFirst || mIsAfterDash;
        word.beginsSubtitle = word.isFirst && (mIsAfterDash || mMark == u':' || mMark == u',');
        word.beginsClause = mIsFirst && !mIsAfterDash && mMark == u';';
        word.isJoined = (begin - wordBefore == 1 && mText[wordBefore] == u' ') ||
                        (begin - wordBefore == 2 && mText[wordBefore] == u'.');
        word.isCompound = (othersOfCore & kPartBreak) != 0;
        word.isLower = ((first | othersOfCore) & kCapital) == 0;
        word.hasOwnCase = ((first | othersOfCore) & kDigit) != 0 || (othersOfCore & kCapital) != 0;
        word.hasAccents = ((first | othersOfCore) & kBeyondAscii) != 0;
        mIsFirst = false;
        mIsAfterDash = false;
        return end;
    }

    TitleText& mTitle;
    TextView mText;
    const words::Lexicon& mLexicon = words::Lexicon::instance();
    std::size_t mPiece = 0;
    std::size_t mNextPiece = 0;
    bool mIsFirst = true;
    bool mIsAfterDash = false;
    // Of the characters of all words.
    unsigned mKinds = 0;
    // The mark that ended the piece before.
    char16_t mMark = u' ';
};

/// The word that ends before a place.
TextView wordBefore(TextView text, std::size_t end) {
    std::size_t begin = end;
    while (begin > 0 && text[begin - 1] != u' ') {
        --begin;
    }
    while (begin < end && !isWordUnit(text[begin])) {
        ++begin;
    }
    return text.substr(begin, end - begin);
}

}  // namespace

// Its room is written when a word needs it.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init)
TitleText::TitleText(TextView title) : text(title), lowered(inLowerCase(title)) {
    Reader(*this).run();
}

TextView TitleText::inLowerCase(TextView title) {
    const std::size_t size = title.size();
    auto* const units = static_cast<char16_t*>(mMemory.allocate(size * sizeof(char16_t), alignof(char16_t)));
    // In a form that the compiler takes several characters at a time of; other letters are rare.
    char16_t all = 0;
    for (std::size_t i = 0; i < size; ++i) {
        units[i] = lettercase::lowerOfAscii(title[i]);
        all = static_cast<char16_t>(all | title[i]);
    }
    if (all >= u'\u0080') {
        for (std::size_t i = 0; i < size; ++i) {
            units[i] = title[i] == words::kApostrophe ? u'\'' : toLower(title[i]);
        }
    }
    return {units, size};
}

std::span<Word> TitleText::pieceFrom(std::size_t word) {
    std::size_t end = word + 1;
    while (end < words.size() && words[end].piece == words[word].piece) {
        ++end;
    }
    return std::span(words).subspan(word, end - word);
}

void splitWord(TextView text, Range word, std::vector<Range>& parts) {
    parts.clear();
    std::size_t begin = word.begin;
    for (std::size_t i = word.begin; i <= word.end; ++i) {
        if (i == word.end || kindOf(text[i], text[i]) == kPartBreak) {
            if (i > begin) {
                parts.push_back({begin, i});
            }
            begin = i + 1;
        }
    }
}

bool isStopOfWord(TextView text, std::size_t stop) {
    const TextView word = wordBefore(text, stop);
    if (word.size() == 1) {
        // A small one becomes a capital in a heading, where it must read the same.
        constexpr TextView kNumerals = u"IVXivx";
        return (isCapital(word[0]) || isSmallLetter(word[0])) && !contains(kNumerals, word);
    }
    const bool isInitials = word.size() >= 3 && word[word.size() - 2] == u'.';
    return isInitials || words::Lexicon::instance().find(word, toLower(word)).is(titlewords::kAbbreviation);
}

bool isAcronym(TextView word) {
    const auto capitals = std::count_if(word.begin(), word.end(), isCapital);
    return capitals >= 2 && std::none_of(word.begin(), word.end(), isSmallLetter);
}

bool hasOwnCase(TextView word) {
    if (word.empty()) {
        return false;
    }
    return std::any_of(word.begin(), word.end(), isDigit) || std::any_of(word.begin() + 1, word.end(), isCapital);
}

bool isGreekLetter(TextView word) {
    return word.size() == 1 && word[0] >= 0x370 && word[0] < 0x400;
}

bool isPossessive(TextView word) {
    return withoutPossessive(word).size() != word.size();
}

TextView withoutPossessive(TextView word) {
    const std::size_t size = word.size();
    const auto isMark = [](char16_t unit) { return unit == u'\'' || unit == words::kApostrophe; };
    if (size > 2 && (word[size - 1] == u's' || word[size - 1] == u'S') && isMark(word[size - 2])) {
        return word.substr(0, size - 2);
    }
    return word;
}

}  // namespace quorvel::titlecase
