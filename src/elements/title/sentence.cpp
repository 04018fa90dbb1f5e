#include "elements/title/sentence.h"

#include <array>

#include "core/letter_case.h"
#include "elements/title/name_finding.h"
#include "elements/title/shapes.h"

namespace quorvel::titlecase {

namespace {

using namespace titlewords;
using words::Known;
using namespace titleshapes;

/// Sets the letters of a piece as a sentence has them.
class SentenceCase {
public:
    SentenceCase(Text& text, const TitleText& title, std::span<Word> words)
        : mText(text), mTitle(title), mWords(words) {}

    void run(bool capitalizeFirstWord, bool capitalizeSubtitle) {
        findNames(mTitle, mWords, true);
        for (std::size_t i = 0; i < mWords.size(); ++i) {
            const bool isCapitalized = i == 0 ? capitalizeFirstWord : mWords[i].isFirst && capitalizeSubtitle;
            write(mWords[i], isCapitalized);
        }
    }

    /// The first word of a title that stands in sentence case. "k-means" stays, but "e-learning" gets its capital.
    void runFirstWordOfTitle() {
        constexpr TextView kLettersOfWords = u"aex";
        const Word& current = mWords.front();
        if (!current.isCompound) {
            capitalizeFirst(current.core);
            return;
        }
        splitWord(mTitle.text, current.core, mParts);
        const TextView first = slice(mTitle.text, mParts.front());
        if (first.size() > 1 || contains(kLettersOfWords, first)) {
            capitalizeFirst(mParts.front());
        }
    }

    /// The first word of its subtitle.
    void runFirstWord(bool isCapitalized) {
        if (!isCapitalized || mWords.front().isCompound) {
            findNames(mTitle, mWords, false);
        }
        write(mWords.front(), isCapitalized);
    }

private:
    void write(const Word& current, bool isCapitalized) {
        if (current.isCompound) {
            writeParts(current, isCapitalized);
        } else if (isCapitalized) {
            capitalizeFirst(current.core);
        } else if (!current.isKept && !current.isLower && !hasCaseInName(current)) {
            lowerAt(mText, current.core.begin);
        }
    }

    /// A case of its own without "'S".
    bool hasCaseInName(const Word& current) const {
        return current.hasOwnCase && (!current.isPossessive() || hasOwnCase(slice(mTitle.text, current.name)));
    }

    /// "edgeR", "mRNA", "p53" and a Greek letter stay.
    void capitalizeFirst(Range word) {
        const TextView written = slice(mTitle.text, word);
        if (!hasOwnCase(written) && !isGreekLetter(written)) {
            capitalizeAt(mText, word.begin);
        }
    }

    void writeParts(const Word& current, bool isCapitalized) {
        splitWord(mTitle.text, current.core, mParts);
        for (std::size_t p = 0; p < mParts.size(); ++p) {
            mParts[p].end = mParts[p].begin + withoutPossessive(slice(mTitle.text, mParts[p])).size();
            if (p < mKnownParts.size()) {
                mKnownParts[p] = mTitle.find(mParts[p]);
            }
        }
        const bool areNames = current.isInPhrase || arePartsNames();
        for (std::size_t p = 0; p < mParts.size(); ++p) {
            const Range part = mParts[p];
            const bool hasCase = hasOwnCase(slice(mTitle.text, part));
            if (p == 0 && isCapitalized) {
                capitalizeFirst(part);
            } else if (!hasCase && !areNames && !(current.isKept && (p == 0 || canBePartOfName(p))) &&
                       !isPartKept(part, knownPart(p), p + 1 == mParts.size())) {
                lowerAt(mText, part.begin);
            }
        }
    }

    Known knownPart(std::size_t p) const { return p < mKnownParts.size() ? mKnownParts[p] : mTitle.find(mParts[p]); }

    /// A part of a hyphenated word: by itself it has no neighbours.
    bool isPartKept(Range part, Known known, bool isLast) const {
        const TextView whole = slice(mTitle.text, part);
        const bool isBetweenLetters = mParts.size() == 2 && mParts[1].end - mParts[1].begin == 1;
        return isNameInCompound(whole, mTitle.lower(part), known, isLast) || (whole == u"A" && isBetweenLetters);
    }

    /// The second part of "Smith-Jones", but not of "Marx-inspired".
    bool canBePartOfName(std::size_t p) const {
        const TextView lowered = mTitle.lower(mParts[p]);
        return !knownPart(p).is(kCompoundTail | kAnyFunctionWord) && isCapital(mTitle.text[mParts[p].begin]) &&
               !endsAsDerived(lowered) && !endsAsNoun(lowered);
    }

    /// "Dickey-Fuller", "Box-Cox": one of two is a person's name and the other can be one, too.
    bool arePartsNames() const {
        if (mParts.size() != 2) {
            return false;
        }
        const Known first = mKnownParts[0];
        const Known second = mKnownParts[1];
        const bool isPerson = first.is(kName) && !endsAsAdjective(mTitle.lower(mParts[0]));
        return (isPerson && mParts[1].end - mParts[1].begin > 2 && canBePartOfName(1)) ||
               (first.is(kAmbiguousName) && !first.is(kPrefix) && second.is(kName | kAmbiguousName)) ||
               (first.is(kName) && second.is(kAmbiguousName));
    }

    Text& mText;
    const TitleText& mTitle;
    std::span<Word> mWords;
    // Of the hyphenated word that is written, without "'s".
    std::vector<Range> mParts;
    // Few words have more.
    std::array<Known, 4> mKnownParts;
};

}  // namespace

void applyBeginnings(Text& text, TitleText& title, bool capitalizeSubtitle) {
    for (std::size_t i = 0; i < title.words.size();) {
        const std::span<Word> piece = title.pieceFrom(i);
        if (i == 0) {
            SentenceCase(text, title, piece).runFirstWordOfTitle();
        } else if (piece.front().beginsSubtitle) {
            SentenceCase(text, title, piece).runFirstWord(capitalizeSubtitle);
        }
        i += piece.size();
    }
}

void applySentence(Text& text, const TitleText& title, std::span<Word> piece, bool capitalizeFirstWord,
                   bool capitalizeSubtitle) {
    SentenceCase(text, title, piece).run(capitalizeFirstWord, capitalizeSubtitle);
}

}  // namespace quorvel::titlecase
