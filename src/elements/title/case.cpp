#include "elements/title/case.h"

#include "core/letter_case.h"
#include "elements/title/sentence.h"

namespace quorvel::titlecase {

namespace {

using words::Known;
using words::Lexicon;

bool isOpeningMark(char16_t unit) {
    return unit == u'(' || unit == u'[' || unit == u'"' || unit == kLeftDoubleQuotationMark || unit == u'\u2018';
}

/// Sets the letters of a piece as a heading has them.
class HeadingCase {
public:
    HeadingCase(Text& text, const TitleText& title, std::span<const Word> words, const Rules& rules)
        : mText(text), mTitle(title), mWords(words), mRules(rules) {}

    void run(bool capitalizeFirstWord) {
        for (std::size_t i = 0; i < mWords.size(); ++i) {
            write(i, mWords[i].isFirst && (i > 0 || capitalizeFirstWord));
        }
    }

private:
    void write(std::size_t index, bool isFirst) {
        using namespace titlewords;
        constexpr WordClasses kSpecial = kSmallWord | kParticle | kForeignParticle | kStaysInHeading | kSpeciesEpithet;
        const Word& word = mWords[index];
        // Nearly all words.
        if (!word.isCompound && !word.known.is(kSpecial) && word.core.end - word.core.begin > 1) {
            if (!word.hasOwnCase) {
                capitalizeAt(mText, word.core.begin);
            }
            return;
        }
        Range first = word.core;
        Known known = word.known;
        bool hasCase = word.hasOwnCase;
        bool isSlash = false;
        if (word.isCompound) {
            splitWord(mTitle.text, word.core, mParts);
            first = mParts.front();
            known = mTitle.find(first);
            hasCase = hasOwnCase(slice(mTitle.text, first));
            isSlash = mTitle.text[first.end] == u'/';
        }
        if (isSlash && isUnit(index)) {
            return;
        }
        if (!hasCase) {
            const char16_t letter = mTitle.text[first.begin];
            const bool isLetter = first.end - first.begin == 1;
            // One test is on the word as it stands, deliberately: a capital "A" is no article.
            const bool isSmall = known.is(kSmallWord) && !(isLetter && letter == u'A') && (!word.isCompound || isSlash);
            const bool isLowered = isSmall && !isFirst && !word.isLast && !isSetOff(word);
            // "e-learning", "t-test": the letter stays, the word behind it is capitalised.
            const bool isPrefix = word.isCompound && isLetter && letter != u'a';
            // "p Values", "Student's t"; "ca. 1500".
            const bool isSign = isGreekLetter(slice(mTitle.text, first)) ||
                                (isLetter && !word.isCompound && letter != u'a' && !isFirst);
            if (isSign) {
                // It stays as it is typed.
            } else if (!isLowered && (isFirst || !(isPrefix || stays(index)))) {
                capitalizeAt(mText, first.begin);
            } else if (isLowered || known.is(kSpeciesEpithet)) {
                lowerAt(mText, first.begin);
            }
        }
        if (word.isCompound && (mRules.capitalizeHyphenatedWord || isSlash)) {
            writeOtherParts(word.isLast);
        }
    }

    /// "Dreams (An Interpretation)": what is set off may begin with a capital of its own.
    bool isSetOff(const Word& word) const {
        const std::size_t at = word.core.begin;
        return at > 0 && isOpeningMark(mTitle.text[at - 1]) && isCapital(mTitle.text[at]);
    }

    /// "56Gb/s", "10 km/h", "1/f".
    bool isUnit(std::size_t index) const {
        const Word& word = mWords[index];
        return isDigit(mTitle.text[word.core.begin]) ||
               (index > 0 && word.isJoined && isDigit(mTitle.text[mWords[index - 1].core.end - 1]));
    }

    /// The parts of a hyphenated word behind the first.
    void writeOtherParts(bool isLastOfTitle) {
        for (std::size_t p = 1; p < mParts.size(); ++p) {
            const Range part = mParts[p];
            if (hasOwnCase(slice(mTitle.text, part))) {
                continue;
            }
            // "co-operation": the hyphen only keeps the vowels apart.
            const bool isOneWord = mTitle.lower(mParts.front()) == u"co" && startsWith(mTitle.lower(part), u"op");
            // "Back-Off", "Opting-Out": nothing follows for which it could be a preposition.
            const bool isAdverb = p + 1 == mParts.size() && mTitle.text[part.begin - 1] != u'/';
            const bool isLast = isLastOfTitle && p + 1 == mParts.size();
            if (isOneWord || (mTitle.find(part).is(titlewords::kSmallWord) && !isLast && !isAdverb)) {
                lowerAt(mText, part.begin);
            } else {
                capitalizeAt(mText, part.begin);
            }
        }
    }

    /// What stays as it stands although it is no small word.
    bool stays(std::size_t index) const {
        using namespace titlewords;
        const Word& word = mWords[index];
        if (index == 0 || !word.known.is(kParticle | kForeignParticle | kStaysInHeading | kSpeciesEpithet)) {
            return false;
        }
        const Word& previous = mWords[index - 1];
        if (word.isLower) {
            if (word.known.is(kParticle | kStaysInHeading)) {
                return true;
            }
            const TextView written = slice(mTitle.text, word.core);
            if (written == u"al") {
                return mTitle.lower(previous.core) == u"et";
            }
            if (word.known.is(kForeignParticle)) {
                const bool standsAlone =
                    written.size() > 2 && written != u"los" && written != u"las" && written != u"ten";
                return previous.known.is(kParticle) || standsAlone || written == u"da";
            }
        }
        if (!word.known.is(kSpeciesEpithet)) {
            return false;
        }
        // The genus may have got its capital just now.
        const TextView genus = slice(mText, previous.core);
        const bool isInitial = genus.size() == 1 && mText[previous.core.end] == u'.';
        return isInitial || (Lexicon::instance().classesOf(previous.known.entry, genus) & kName) != 0;
    }

    Text& mText;
    const TitleText& mTitle;
    std::span<const Word> mWords;
    const Rules& mRules;
    // Of the hyphenated word that is written.
    std::vector<Range> mParts;
};

}  // namespace

bool standsInHeadingCase(const TitleText& title) {
    int capitals = 0;
    int smalls = 0;
    std::vector<Range> parts;
    for (const Word& word : title.words) {
        Range first = word.core;
        Known known = word.known;
        Known knownName = word.knownName;
        bool hasCase = word.hasOwnCase;
        if (word.isCompound) {
            splitWord(title.text, word.core, parts);
            first = parts.front();
            known = title.find(first);
            knownName = title.find({first.begin, first.begin + withoutPossessive(slice(title.text, first)).size()});
            hasCase = hasOwnCase(slice(title.text, first));
        }
        if (word.isFirst || first.end - first.begin < 2 || hasCase || known.is(titlewords::kAnyFunctionWord)) {
            continue;
        }
        const char16_t letter = title.text[first.begin];
        if (isSmallLetter(letter)) {
            ++smalls;
        } else if (isCapital(letter) && !knownName.is(titlewords::kPlace)) {
            ++capitals;
        }
    }
    return capitals > smalls;
}

bool capitalizesFirstWord(const Word& first, const Rules& rules) {
    return rules.isHeading || (!first.beginsClause && (rules.capitalizeSubtitle || !first.beginsSubtitle));
}

void applyPiece(Text& text, const TitleText& title, std::span<Word> piece, bool capitalizeFirstWord,
                const Rules& rules) {
    if (rules.isHeading) {
        HeadingCase(text, title, piece, rules).run(capitalizeFirstWord);
    } else {
        applySentence(text, title, piece, capitalizeFirstWord, rules.capitalizeSubtitle);
    }
}

std::vector<Range> changedWords(TextView before, TextView after, std::span<const Word> words) {
    std::vector<Range> changed;
    for (const Word& word : words) {
        if (slice(before, word.core) != slice(after, word.core)) {
            changed.push_back(word.core);
        }
    }
    return changed;
}

CasedTitle casedTitle(TextView title, const Rules& rules) {
    CasedTitle result;
    result.text = title;
    TitleText read = readTitle(title);
    if (!rules.isHeading && !standsInHeadingCase(read)) {
        applyBeginnings(result.text, read, rules.capitalizeSubtitle);
    } else {
        for (std::size_t i = 0; i < read.words.size();) {
            const std::span<Word> piece = read.pieceFrom(i);
            applyPiece(result.text, read, piece, capitalizesFirstWord(piece.front(), rules), rules);
            i += piece.size();
        }
    }
    result.changed = changedWords(title, result.text, read.words);
    return result;
}

}  // namespace quorvel::titlecase
