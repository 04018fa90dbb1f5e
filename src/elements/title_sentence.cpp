// Sentence case: what keeps its capital in a title that stood in heading case.

#include <algorithm>
#include <bitset>
#include <initializer_list>

#include "core/letter_case.h"
#include "elements/title_case.h"
#include "elements/title_words.h"
#include "elements/word_set.h"

namespace quorvel::titlecase {

namespace {

TextView slice(TextView text, Range range) {
    return text.substr(range.begin, range.end - range.begin);
}

// Words with accents that are English.
constexpr TextView kLoanWords[] = {
    u"café",    u"cafés",   u"cliché", u"clichés", u"coöperation", u"élite",   u"façade",
    u"façades", u"fiancé",  u"naïve",  u"naïvely", u"naïveté",     u"protégé", u"régime",
    u"résumé",  u"résumés", u"rôle",   u"rôles",   u"soufflé",
};

// Endings of common words, which a name behind a given name does not have.
constexpr TextView kCommonEndings[] = {u"ing", u"tion", u"tions", u"ment", u"ments", u"ness", u"ology", u"ity", u"ism"};

bool endsWithAny(TextView text, std::initializer_list<TextView> endings) {
    return std::any_of(endings.begin(), endings.end(), [&](TextView ending) { return endsWith(text, ending); });
}

bool isLoanWord(TextView lowered) {
    return std::find(std::begin(kLoanWords), std::end(kLoanWords), lowered) != std::end(kLoanWords);
}

bool hasCommonEnding(TextView word) {
    return std::any_of(std::begin(kCommonEndings), std::end(kCommonEndings),
                       [&](TextView ending) { return endsWith(word, ending); });
}

bool isKnown(TextView word) {
    return titlewords::isPlace(word) || titlewords::isName(word) || titlewords::isGivenName(word);
}

/// "Victorian", "Guatemalan", "Japanese", but not "librarian".
bool hasNameSuffix(TextView lowered) {
    if (endsWith(lowered, u"s")) {
        lowered.remove_suffix(1);
    }
    if (lowered.size() < 5 || titlewords::isCommonInNameSuffix(lowered)) {
        return false;
    }
    if (endsWithAny(lowered, {u"ician", u"arian"})) {
        return false;
    }
    return endsWithAny(lowered, {u"ian", u"ean", u"ese", u"esque"}) && !endsWithAny(lowered, {u"cean", u"esque"});
}

/// "Lermontov", "Johnson", "Hamburg": endings that few common words have.
bool hasSurnameEnding(TextView lowered) {
    constexpr TextView kEndings[] = {u"berg",  u"burg",  u"burgh", u"bury", u"elli",  u"enko", u"etti",
                                     u"ham",   u"ini",   u"ius",   u"kov",  u"mann",  u"nov",  u"ov",
                                     u"ski",   u"sky",   u"son",   u"stan", u"stein", u"ucci", u"vich",
                                     u"ville", u"worth", u"shire", u"guez"};
    constexpr TextView kCommon[] = {
        u"arson",      u"person",   u"reason",     u"season",      u"lesson",       u"prison",      u"poison",
        u"comparison", u"treason",  u"unison",     u"venison",     u"garrison",     u"crimson",     u"parson",
        u"liaison",    u"grandson", u"stepson",    u"radius",      u"genius",       u"gingham",     u"iceberg",
        u"vaudeville", u"bikini",   u"martini",    u"houdini",     u"panini",       u"zucchini",    u"husky",
        u"risky",      u"frisky",   u"whisky",     u"salesperson", u"spokesperson", u"chairperson", u"layperson",
        u"mason",      u"jettison", u"unworth",    u"noteworth",   u"oxbow",        u"caisson",     u"alumni",
        u"mini",       u"bison",    u"trustworth", u"sartorius",   u"fettucini"};
    // "Kolkata" cannot be told from "data", but "Palermo", "Nagasaki" and "Honolulu" look foreign.
    const char16_t last = lowered.empty() ? u' ' : lowered.back();
    if (lowered.size() >= 4 && (last == u'o' || last == u'i' || last == u'u') &&
        !titlewords::isCommonInVowel(lowered)) {
        return true;
    }
    // Few words have such an ending: the list of those that are no names is not asked for the others.
    static const WordSet common(kCommon);
    return lowered.size() >= 6 &&
           std::any_of(std::begin(kEndings), std::end(kEndings),
                       [&](TextView ending) { return lowered.back() == ending.back() && endsWith(lowered, ending); }) &&
           !common.holds(lowered);
}

/// Known by itself, as a plural, or as what its ending was put to: "Kantianism", "Darwinists".
/// @param lowered the word in lower case
bool isProperName(TextView word, TextView lowered) {
    if (isKnown(word)) {
        return true;
    }
    TextView stem = word;
    for (const TextView ending : {TextView(u"s"), TextView(u"ism"), TextView(u"ist"), TextView(u"ization"),
                                  TextView(u"ized"), TextView(u"izing")}) {
        if (stem.size() > std::max<std::size_t>(3, 2 * ending.size()) && endsWith(stem, ending)) {
            stem.remove_suffix(ending.size());
            if (isKnown(stem)) {
                return true;
            }
        }
    }
    return hasNameSuffix(lowered.substr(0, stem.size())) || hasSurnameEnding(lowered);
}

class SentenceCase {
public:
    SentenceCase(Text& text, std::span<const Word> words, bool capitalizeFirstWord, const Rules& rules)
        : mText(text),
          mWords(words),
          mCapitalizeFirstWord(capitalizeFirstWord),
          mRules(rules),
          mKept(words.size(), false),
          mIsPhrase(words.size(), false) {
        mLowered.reserve(words.size());
        for (std::size_t i = 0; i < words.size(); ++i) {
            mLowered.push_back(toLower(wholeName(i)));
        }
    }

    void run() {
        findPhrases();
        findOrganizations();
        for (std::size_t i = 0; i < mWords.size(); ++i) {
            mKept[i] = mKept[i] || isName(i);
        }
        for (std::size_t i = mWords.size(); i-- > 0;) {
            mKept[i] = mKept[i] || isPartOfNameBehind(i);
        }
        for (std::size_t i = 0; i < mWords.size(); ++i) {
            write(i);
        }
    }

private:
    TextView word(std::size_t i) const { return slice(mText, mWords[i].core); }
    TextView wholeName(std::size_t i) const { return withoutPossessive(word(i)); }

    /// The word before, in the same piece and with nothing but a blank between (and a full stop, behind an
    /// initial or a title); empty otherwise.
    TextView neighbourBefore(std::size_t i) const {
        if (i == 0 || mWords[i].piece != mWords[i - 1].piece) {
            return {};
        }
        const std::size_t end = mWords[i - 1].core.end;
        const std::size_t gap = mWords[i].core.begin - end;
        const bool isJoined = (gap == 1 && mText[end] == u' ') || (gap == 2 && mText[end] == u'.');
        return isJoined ? word(i - 1) : TextView();
    }
    bool hasStopBehind(std::size_t i) const {
        return mWords[i].core.end < mText.size() && mText[mWords[i].core.end] == u'.';
    }
    bool isFunction(std::size_t i) const { return titlewords::isFunctionWord(mLowered[i]); }

    void findPhrases() {
        for (std::size_t i = 0; i < mWords.size(); ++i) {
            for (const titlewords::Phrase& phrase : titlewords::phrasesFrom(mLowered[i])) {
                const bool isWorkItself = phrase.isWork && (i == 0 || (i == 1 && isFunction(0)));
                if (!isWorkItself && i + phrase.words <= mWords.size() && standsAt(phrase, i)) {
                    break;
                }
            }
        }
    }

    /// Keeps the capitals of a phrase that stands here.
    bool standsAt(const titlewords::Phrase& phrase, std::size_t i) {
        TextView rest = phrase.text;
        constexpr std::size_t kMostWords = 16;
        std::bitset<kMostWords> capitals;
        if (phrase.words > kMostWords) {
            return false;
        }
        for (std::size_t k = 0; k < phrase.words; ++k) {
            const TextView part = before(rest, u" ");
            rest.remove_prefix(std::min(part.size() + 1, rest.size()));
            TextView expected = part;
            while (!expected.empty() && (expected.back() == u'.' || expected.back() == u',' ||
                                         expected.back() == u'\'' || expected.back() == u'\u2019')) {
                expected.remove_suffix(1);
            }
            const bool isSame =
                equalsIgnoringCase(word(i + k), expected) || equalsIgnoringCase(wholeName(i + k), expected);
            if (!isSame || mWords[i + k].piece != mWords[i].piece) {
                return false;
            }
            capitals[k] = isCapital(part[0]);
        }
        for (std::size_t k = 0; k < phrase.words; ++k) {
            mKept[i + k] = mKept[i + k] || capitals[k];
            mIsPhrase[i + k] = mIsPhrase[i + k] || capitals[k];
        }
        return true;
    }

    /// "American Heart Association", back from its last word.
    void findOrganizations() {
        constexpr std::size_t kLongest = 5;
        for (std::size_t i = 1; i < mWords.size(); ++i) {
            const bool isInstrument = titlewords::isInstrumentTail(word(i));
            if (titlewords::isTailBehindArticle(word(i))) {
                findBehindArticle(i);
            }
            if (!isInstrument && !titlewords::isOrganizationTail(word(i))) {
                continue;
            }
            for (std::size_t k = i; k > 0 && i - k < kLongest && !neighbourBefore(k).empty(); --k) {
                if (isInstrument ? titlewords::isName(word(k - 1)) : titlewords::isOrganizationLead(word(k - 1))) {
                    keep(k - 1, i);
                    break;
                }
            }
        }
    }

    void keep(std::size_t first, std::size_t last) {
        for (std::size_t k = first; k <= last; ++k) {
            mKept[k] = mKept[k] || !isFunction(k);
        }
    }

    /// "the Clean Air Act", but not "the speech act".
    void findBehindArticle(std::size_t i) {
        constexpr std::size_t kLongest = 6;
        for (std::size_t k = i; k > 0 && i - k < kLongest && !neighbourBefore(k).empty(); --k) {
            if (equalsIgnoringCase(word(k - 1), u"the")) {
                if (i - k >= 2) {
                    keep(k, i);
                }
                return;
            }
        }
    }

    bool isName(std::size_t i) const {
        const TextView whole = wholeName(i);
        const Text& lowered = mLowered[i];
        const TextView previous = neighbourBefore(i);
        if (whole.size() == 1) {
            return isSingleLetterKept(i, whole, previous);
        }
        if (isProperName(whole, lowered)) {
            return true;
        }
        if (isMonth(i, whole, previous)) {
            return true;
        }
        if (isFunction(i)) {
            return false;
        }
        if (hasForeignLetter(lowered)) {
            return true;
        }
        if (whole == u"Western") {
            return true;
        }
        if (isCompass(i, whole)) {
            return true;
        }
        if (!previous.empty()) {
            const bool isAfterInitial = previous.size() == 1 && hasStopBehind(i - 1) && isCapital(previous[0]);
            if ((isAfterInitial || titlewords::isGivenName(previous)) && !hasCommonEnding(lowered)) {
                return !titlewords::isSpeciesEpithet(lowered);
            }
            if (titlewords::isNameLead(previous) && isCapital(previous[0])) {
                return true;
            }
            const bool isAfterName =
                mKept[i - 1] || (mWords[i - 1].isFirst && isProperName(previous, toLower(previous)));
            if (isAfterName && titlewords::isNameTail(whole)) {
                return true;
            }
            const bool isAdjective = endsWithAny(previous, {u"n", u"sh", u"ch", u"ese", u"ic"});
            if (isAfterName && titlewords::isInstitutionTail(whole) && !isAdjective) {
                return true;
            }
        }
        if (isBehindOf(i) || isTownBefore(i, previous)) {
            return true;
        }
        return isPossessive(word(i)) && isPossessiveOfName(lowered);
    }

    /// "Battle of Hastings", "Duke of Norfolk".
    bool isBehindOf(std::size_t i) const {
        return i >= 2 && equalsIgnoringCase(neighbourBefore(i), u"of") && !neighbourBefore(i - 1).empty() &&
               titlewords::isOfLead(word(i - 2)) && !hasCommonEnding(word(i)) && !mWords[i - 2].isLast;
    }

    /// "in Flint, Michigan".
    bool isTownBefore(std::size_t i, TextView previous) const {
        return i + 1 < mWords.size() && mWords[i].piece == mWords[i + 1].piece && equalsIgnoringCase(previous, u"in") &&
               mText[mWords[i].core.end] == u',' && (titlewords::isPlace(word(i + 1)) || mIsPhrase[i + 1]);
    }

    static bool isSingleLetterKept(std::size_t i, TextView letter, TextView previous) {
        const bool isArticle = letter == u"A" && !(i > 0 && titlewords::takesLetter(previous));
        return !isArticle;
    }

    /// "May" and "March" beside a number or behind "in".
    bool isMonth(std::size_t i, TextView whole, TextView previous) const {
        if (whole != u"May" && whole != u"March") {
            return false;
        }
        const bool isBeforeNumber = i + 1 < mWords.size() && isDigit(word(i + 1).front());
        const bool isBehindNumber = !previous.empty() && isDigit(previous.back());
        return isBeforeNumber || isBehindNumber || (equalsIgnoringCase(previous, u"in") && mWords[i].isLast);
    }

    static bool hasForeignLetter(TextView lowered) {
        return std::any_of(lowered.begin(), lowered.end(),
                           [](char16_t unit) { return unit >= 0xC0 && isCasedLetter(unit); }) &&
               !isLoanWord(lowered);
    }

    /// "the Decline of the West".
    bool isCompass(std::size_t i, TextView whole) const {
        const bool isRegion = whole == u"West" || whole == u"South" || whole == u"East" || whole == u"North";
        const bool isAlone = mWords[i].isLast || isFunction(i + 1);
        return isRegion && isAlone && equalsIgnoringCase(neighbourBefore(i), u"the");
    }

    static bool isPossessiveOfName(TextView lowered) {
        const bool isAgent =
            endsWithAny(lowered, {u"er", u"or", u"ist", u"ian", u"ing", u"ess", u"tion", u"ent", u"ant"});
        return !isAgent && !titlewords::isCommonPossessor(lowered);
    }

    /// A first part of a name that was found behind it: "South" of "South Sudan", "President" of "President
    /// Lincoln", "Mount" of "Mount Athos".
    bool isPartOfNameBehind(std::size_t i) {
        if (i + 1 >= mWords.size() || neighbourBefore(i + 1).empty() || isPossessive(word(i))) {
            return false;
        }
        const TextView whole = word(i);
        const TextView next = wholeName(i + 1);
        if (titlewords::isNameLead(whole)) {
            return mKept[i + 1];
        }
        // "Battle of Hastings", but not "kings of England".
        if (titlewords::isOfLead(whole) && next == u"of" && i + 2 < mWords.size()) {
            return mKept[i + 2] && !neighbourBefore(i + 2).empty();
        }
        const bool isNational = whole == u"National" || whole == u"Royal";
        if (isNational && (titlewords::isInstitutionTail(next) || next == u"Gallery" || next == u"Library")) {
            mKept[i + 1] = true;
            return true;
        }
        if (titlewords::isTitleOfPerson(whole)) {
            return isKnown(next);
        }
        if (!titlewords::isDirection(whole) || !titlewords::isPlace(next)) {
            return false;
        }
        const bool isLarge = startsWith(next, u"Europe") || startsWith(next, u"Africa") || startsWith(next, u"Asia") ||
                             next == u"Ireland" || next == u"California" || next == u"Australia";
        return isLarge || !endsWith(whole, u"ern");
    }

    bool isCapitalizedAtStart(std::size_t i) const {
        return i == 0 ? mCapitalizeFirstWord : mWords[i].isFirst && mRules.capitalizeSubtitle;
    }

    void write(std::size_t i) {
        const Word& current = mWords[i];
        const std::vector<Range> parts = partsOf(mText, current.core);
        for (std::size_t p = 0; p < parts.size(); ++p) {
            const TextView part = slice(mText, parts[p]);
            if (p == 0 && isCapitalizedAtStart(i)) {
                capitalizeAt(mText, parts[p].begin);
                continue;
            }
            const bool isWhole = parts.size() == 1;
            const bool isKept = isWhole ? mKept[i] : isPartKept(part, mIsPhrase[i] || (p == 0 && mKept[i]));
            if (!isKept && !hasOwnCase(withoutPossessive(part))) {
                lowerAt(mText, parts[p].begin);
            }
        }
    }

    /// A part of a hyphenated word: by itself it has no neighbours.
    static bool isPartKept(TextView part, bool isPhrase) {
        const TextView whole = withoutPossessive(part);
        const Text lowered = toLower(whole);
        return isPhrase || (whole.size() == 1 && whole != u"A") || (whole.size() > 1 && isProperName(whole, lowered)) ||
               hasForeignLetter(lowered);
    }

    Text& mText;
    std::span<const Word> mWords;
    bool mCapitalizeFirstWord;
    const Rules& mRules;
    // The words without their possessive.
    std::vector<Text> mLowered;
    std::vector<bool> mKept;
    // Part of a known name of several words, hyphens and all.
    std::vector<bool> mIsPhrase;
};

}  // namespace

void applySentence(Text& text, std::span<const Word> piece, bool capitalizeFirstWord, const Rules& rules) {
    SentenceCase(text, piece, capitalizeFirstWord, rules).run();
}

}  // namespace quorvel::titlecase
