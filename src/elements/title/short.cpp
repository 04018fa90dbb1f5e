#include "elements/title/short.h"

#include <algorithm>
#include <vector>

#include "core/letter_case.h"
#include "elements/title/shapes.h"
#include "elements/title/text.h"
#include "elements/words/lexicon.h"

namespace quorvel {

namespace {

using namespace titlewords;

constexpr TextView kLeadingArticles[] = {u"A ", u"An ", u"The "};
constexpr TextView kMarks = u"?!";
constexpr TextView kSignsAroundWord = u",;:?!()-\u2013\u2014\u201C\u201D\u2018\u2019\"";

constexpr std::size_t kMostWords = 4;

/// Where the first words of a title end, counted in words.
class Beginning {
public:
    explicit Beginning(TextView title) : mWords(split(title, u" ")) {
        for (const Text& word : mWords) {
            mCores.push_back(toLower(trim(word, kSignsAroundWord)));
            mKnown.push_back(words::Lexicon::instance().find(trim(word, kSignsAroundWord), mCores.back()));
        }
    }

    /// How many words the short title keeps; all of a short one.
    std::size_t keptWords() const {
        const std::size_t mark = firstMark();
        if (mark == mWords.size() && isBrief()) {
            return mark;
        }
        for (const std::size_t end : {std::min(mark, firstVerb()), mark}) {
            if (const std::size_t kept = phraseWithin(std::min(end, kMostWords), end); kept > 0) {
                return kept;
            }
        }
        return beforeNounIsMissing();
    }

private:
    bool isBrief() const { return mWords.size() <= kMostWords; }
    /// A word in which nothing ends: "of", "your", a dash. "Elizabeth I" has none.
    bool isSmall(std::size_t i) const {
        return (mKnown[i].is(kInsideShortTitle | kAnyFunctionWord) && !(i > 0 && mWords[i] == u"I")) ||
               mCores[i].empty();
    }
    bool endsOn(std::size_t i, TextView signs) const {
        return !mWords[i].empty() && signs.find(mWords[i].back()) != TextView::npos;
    }
    bool isNextSmall(std::size_t i) const { return i + 1 < mWords.size() && isSmall(i + 1); }

    bool isQuality(std::size_t i) const {
        return mKnown[i].is(kAdjective) || titleshapes::endsAsQuality(mCores[i]) || endsWith(mCores[i], u"ed") ||
               (mKnown[i].is(kPlace) && (titleshapes::endsAsPeople(mCores[i]) || endsWith(mCores[i], u"ican")));
    }

    /// "Economic" in "Economic Development", "Winter's" in "Winter's Night".
    bool isBeforeItsNoun(std::size_t i) const {
        const bool goesOn =
            i + 1 < mWords.size() && !isSmall(i + 1) && !endsWith(mCores[i + 1], u"ly") && !endsOn(i, u",?!");
        return goesOn && (isQuality(i) || titlecase::isPossessive(mWords[i]));
    }

    /// "Avoid" in "How to Avoid Common Mistakes".
    bool isInfinitive(std::size_t i) const { return i > 1 && mCores[i - 1] == u"to" && mCores[i - 2] == u"how"; }

    /// A word that a phrase can end on.
    bool canEnd(std::size_t i) const {
        return !isSmall(i) && !mKnown[i].is(kHeadlineVerb) && !isBeforeItsNoun(i) && !isInfinitive(i);
    }

    /// "Obesity", but not "So," and not the first of "Randomized, Controlled Trial".
    bool isNoun(std::size_t i) const { return canEnd(i) && !(endsOn(i, u",") && isQuality(i)); }

    /// Behind "Computer Addiction?" and "This Once,", but not behind "So,"; a comma between the members of a series
    /// is none, nor is one of a title that is brief as it is.
    std::size_t firstMark() const {
        for (std::size_t end = 1; end < mWords.size() && end <= kMostWords; ++end) {
            const bool isComma = endsOn(end - 1, u",") && !isBrief() && !isSeriesBehind(end);
            if ((end > 1 || isNoun(0)) && (isComma || endsOn(end - 1, kMarks))) {
                return end;
            }
        }
        return mWords.size();
    }

    /// "Germs, and Steel" behind "Guns,".
    bool isSeriesBehind(std::size_t first) const {
        const std::size_t end = std::min(first + kMostWords, mWords.size());
        for (std::size_t i = first; i < end; ++i) {
            const bool isAnd = mWords[i] == u"and" || mWords[i] == u"or" || mWords[i] == u"&";
            if (endsOn(i, u",") || isAnd) {
                return true;
            }
        }
        return false;
    }

    /// Where the subject ends in front of its verb; a question has none there.
    std::size_t firstVerb() const {
        const bool isQuestion = isSmall(0) && !mKnown[0].is(kInsideShortTitle);
        for (std::size_t i = 1; i < mWords.size() && !isQuestion; ++i) {
            if (mKnown[i].is(kHeadlineVerb)) {
                return i;
            }
        }
        return mWords.size();
    }

    /// The longest of the first words that ends a phrase; 0 when none does.
    /// @param end where a mark or a verb ends one
    std::size_t phraseWithin(std::size_t most, std::size_t end) const {
        for (std::size_t kept = most; kept > 0; --kept) {
            const bool endsPhrase = kept == end || isNextSmall(kept - 1) || endsOn(kept - 1, u",");
            if (endsPhrase && canEnd(kept - 1) && (kept > 1 || isNoun(0))) {
                return kept;
            }
        }
        return 0;
    }

    /// Of a title without an end in its first words as many as end on a noun, and more where none does.
    std::size_t beforeNounIsMissing() const {
        std::size_t kept = std::min(kMostWords, mWords.size());
        while (kept > 0 && !canEnd(kept - 1)) {
            --kept;
        }
        if (kept > 1 || (kept == 1 && isNoun(0))) {
            return kept;
        }
        kept = std::min(kMostWords, mWords.size());
        while (kept < mWords.size() && !canEnd(kept - 1)) {
            ++kept;
        }
        return kept;
    }

    std::vector<Text> mWords;
    // The same in small letters, without the marks around them.
    std::vector<Text> mCores;
    std::vector<words::Known> mKnown;
};

/// With the closing mark of a quotation that begins in the first units of the text.
std::size_t behindQuotation(TextView text, std::size_t length) {
    const TextView kept = text.substr(0, length);
    const std::size_t opening = kept.find_last_of(u"\u201C\u2018");
    if (opening == TextView::npos) {
        return length;
    }
    const char16_t closing = text[opening] == u'\u201C' ? u'\u201D' : u'\u2019';
    const std::size_t end = text.find(closing, opening);
    return end == TextView::npos ? length : std::max(length, end + 1);
}

/// Where so many words of a text end.
std::size_t lengthOf(TextView text, std::size_t words) {
    std::size_t end = 0;
    for (; words > 0 && end < text.size(); --words) {
        end = std::min(text.find(u' ', end + 1), text.size());
    }
    return end;
}

}  // namespace

Text shortTitle(TextView title) {
    TextView text = before(before(title, u": "), u"; ");
    for (const TextView article : kLeadingArticles) {
        if (startsWith(text, article)) {
            text.remove_prefix(article.size());
            break;
        }
    }
    if (text.empty()) {
        return {};
    }
    text = text.substr(0, behindQuotation(text, lengthOf(text, Beginning(text).keptWords())));
    return Text(text.substr(0, text.find_last_not_of(u",;") + 1));
}

}  // namespace quorvel
