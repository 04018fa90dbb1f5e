#include "elements/title/name_finding.h"

#include <algorithm>

#include "core/letter_case.h"
#include "elements/title/shapes.h"

namespace quorvel::titlecase {

namespace {

using namespace titlewords;
using words::EntryId;
using words::Known;
using words::Lexicon;
using words::Phrase;
using namespace titleshapes;

class PieceNames {
public:
    PieceNames(const TitleText& title, std::span<Word> words, bool stoodInHeadingCase)
        : mTitle(title), mWords(words), mLexicon(Lexicon::instance()), mStoodInHeadingCase(stoodInHeadingCase) {}

    void find() {
        findPhrases();
        findOrganizations();
        findAct();
        for (std::size_t i = 0; i < mWords.size(); ++i) {
            mWords[i].isKept = mWords[i].isKept || (canBeName(i) && isName(i));
            // "Harbin Institute of Technology".
            if (mWords[i].isKept && mWords[i].knownName.is(kOrganizationTail) && i > 0 && mWords[i - 1].isKept) {
                keepBehindOf(i);
            }
        }
        for (std::size_t i = mWords.size(); i-- > 0;) {
            mWords[i].isKept = mWords[i].isKept || isPartOfNameBehind(i);
        }
        findSeriesOfNames();
    }

private:
    TextView word(std::size_t i) const { return slice(mTitle.text, mWords[i].core); }
    TextView name(std::size_t i) const { return slice(mTitle.text, mWords[i].name); }
    TextView lower(std::size_t i) const { return mTitle.lower(mWords[i].core); }
    TextView lowerName(std::size_t i) const { return mTitle.lower(mWords[i].name); }

    /// Nothing but a blank, or the full stop of an initial or title, stands between the word and the one before.
    bool hasNeighbour(std::size_t i) const { return i > 0 && mWords[i].isJoined; }
    bool isBehind(std::size_t i, TextView lowered) const { return hasNeighbour(i) && lower(i - 1) == lowered; }
    bool isFunction(std::size_t i) const { return mWords[i].knownName.is(kAnyFunctionWord); }

    void findPhrases() {
        for (std::size_t i = 0; i < mWords.size(); ++i) {
            for (const Phrase& phrase : mLexicon.phrasesFrom(mWords[i].knownName.entry)) {
                const bool isWorkItself = phrase.isWork && (i == 0 || (i == 1 && isFunction(0)));
                if (!isWorkItself && standsAt(phrase, i)) {
                    keepCapitals(phrase, i);
                    break;
                }
            }
        }
    }

    bool standsAt(const Phrase& phrase, std::size_t i) const {
        const std::span<const Word> words = mWords.subspan(i);
        return phrase.words.size() <= words.size() &&
               std::equal(phrase.words.begin(), phrase.words.end(), words.begin(), [](EntryId entry, const Word& word) {
                   return entry == word.known.entry || entry == word.knownName.entry;
               });
    }

    void keepCapitals(const Phrase& phrase, std::size_t i) {
        for (std::size_t k = 0; k < phrase.words.size(); ++k) {
            if ((phrase.capitals >> k & 1U) != 0) {
                mWords[i + k].isKept = true;
                mWords[i + k].isInPhrase = true;
            } else {
                mWords[i + k].isSmallInPhrase = true;
            }
        }
    }

    /// "American Heart Association", back from its last word.
    void findOrganizations() {
        constexpr std::size_t kLongest = 5;
        for (std::size_t i = 1; i < mWords.size(); ++i) {
            const Known last = mWords[i].known;
            if (!last.is(kAcronymTail | kOfLeadBehindArticle | kTailBehindArticle | kInstrumentTail |
                         kOrganizationTail)) {
                continue;
            }
            if (last.is(kAcronymTail)) {
                findBeforeAcronym(i);
            }
            if (last.is(kOfLeadBehindArticle) && isBehind(i, u"the")) {
                findSeries(i);
            }
            if (last.is(kTailBehindArticle)) {
                findBehindArticle(i);
                findActOfYear(i);
            }
            if (!last.is(kInstrumentTail | kOrganizationTail)) {
                continue;
            }
            for (std::size_t k = i; i - k < kLongest && hasNeighbour(k); --k) {
                if (last.is(kInstrumentTail) ? isInstrumentLead(k - 1, i) : mWords[k - 1].known.is(kOrganizationLead)) {
                    keep(k - 1, i);
                    keepBehindOf(i);
                    break;
                }
            }
        }
    }

    /// "National Institute of Mental Health", "American Association for the Advancement of Science".
    void keepBehindOf(std::size_t organization) {
        std::size_t i = organization + 1;
        while (i < mWords.size() && hasNeighbour(i) && (lower(i) == u"of" || lower(i) == u"for")) {
            ++i;
            i += i < mWords.size() && lower(i) == u"the" ? 1U : 0U;
            const std::size_t first = i;
            while (i < mWords.size() && hasNeighbour(i) && !isFunction(i)) {
                ++i;
            }
            if (i > first) {
                keep(first, i - 1);
            }
        }
    }

    /// "Acculturative Stress Inventory (ASI)": back as many words as the acronym has letters.
    void findBeforeAcronym(std::size_t i) {
        if (i + 1 >= mWords.size() || mTitle.text[mWords[i + 1].core.begin - 1] != u'(') {
            return;
        }
        const TextView acronym = word(i + 1);
        if (!isAcronym(acronym) || acronym.size() > i + 1) {
            return;
        }
        const std::size_t first = i + 1 - acronym.size();
        for (std::size_t k = first; k <= i; ++k) {
            if (word(k).front() != acronym[k - first] || (k > first && !hasNeighbour(k))) {
                return;
            }
        }
        keep(first, i);
    }

    /// "the Journal of Money, Credit and Banking", "the Department of Health".
    void findSeries(std::size_t i) {
        std::size_t last = i + 1;
        if (last + 1 >= mWords.size() || lower(last) != u"of" || isFunction(last + 1)) {
            return;
        }
        const auto goesOn = [&](std::size_t k) {
            return k < mWords.size() && !isFunction(k) &&
                   (hasNeighbour(k) || mTitle.text[mWords[k - 1].core.end] == u',');
        };
        ++last;
        while (goesOn(last + 1)) {
            ++last;
        }
        if (last + 2 < mWords.size() && lower(last + 1) == u"and" && goesOn(last + 2)) {
            last += 2;
        }
        keep(i, last);
    }

    /// A piece that is the name of an act: "Mental Health on Campus Improvement Act", but "A Balancing Act".
    void findAct() {
        constexpr std::size_t kFewest = 3;
        std::size_t words = 0;
        if (mWords.empty() || word(mWords.size() - 1) != u"Act") {
            return;
        }
        for (std::size_t i = 0; i < mWords.size(); ++i) {
            const TextView lowered = lower(i);
            const bool isLink = lowered == u"of" || lowered == u"for" || lowered == u"and" || lowered == u"on" ||
                                lowered == u"in" || lowered == u"to";
            if ((i > 0 && !hasNeighbour(i)) || (isFunction(i) && !isLink)) {
                return;
            }
            words += isLink ? 0U : 1U;
        }
        if (words > kFewest - 1) {
            keep(0, mWords.size() - 1);
        }
    }

    /// "Beck Depression Inventory", but "Bayesian rating scale" and "Likert scale".
    bool isInstrumentLead(std::size_t i, std::size_t tail) const {
        const bool isScale = startsWith(word(tail), u"Scale");
        return mWords[i].known.is(kName) && !endsAsPeople(lower(i)) && (!isScale || tail - i > 1);
    }

    void keep(std::size_t first, std::size_t last) {
        for (std::size_t k = first; k <= last; ++k) {
            mWords[k].isKept = mWords[k].isKept || !isFunction(k);
        }
    }

    /// "the Clean Air Act", but not "the speech act".
    void findBehindArticle(std::size_t i) {
        constexpr std::size_t kLongest = 6;
        for (std::size_t k = i; i - k < kLongest && hasNeighbour(k); --k) {
            if (lower(k - 1) == u"the") {
                if (i - k >= 2) {
                    keep(k, i);
                }
                return;
            }
        }
    }

    /// "Civil Rights Act of 1964".
    void findActOfYear(std::size_t i) {
        const bool hasYear = i + 2 < mWords.size() && isBehind(i + 2, u"of") && isDigit(word(i + 2).front());
        std::size_t first = i;
        while (hasYear && hasNeighbour(first) && !isFunction(first - 1)) {
            --first;
        }
        if (first < i) {
            keep(first, i);
        }
    }

    /// Most words of a title are small ones and need no further look.
    bool canBeName(std::size_t i) const {
        const Word& current = mWords[i];
        return !current.isLower && !current.isSmallInPhrase &&
               (!isFunction(i) || current.knownName.is(kAnyName | kAmbiguousMonth | kAmbiguousGivenName) ||
                current.core.end - current.core.begin == 1);
    }

    bool isName(std::size_t i) const {
        const Word& current = mWords[i];
        const Known known = current.knownName;
        const TextView whole = name(i);
        const TextView lowered = lowerName(i);
        if (whole.size() == 1) {
            // "A" is an article, but for the A of "vitamin A".
            return whole != u"A" || (hasNeighbour(i) && mWords[i - 1].known.is(kLetterTaker));
        }
        if (known.is(kAmbiguousGivenName) ? isBeforeName(i)
            : current.isCompound          ? known.is(kAnyName)
                                          : isNameByItself(whole, lowered, known) || isGenus(i)) {
            return true;
        }
        if (isMonth(i)) {
            return true;
        }
        if (isFunction(i)) {
            return false;
        }
        if ((current.hasAccents && hasForeignLetter(lowered, known) && !current.isCompound) || isWestern(i) ||
            isCompass(i)) {
            return true;
        }
        if (isFormula(i)) {
            return true;
        }
        if (hasNeighbour(i)) {
            const Word& previous = mWords[i - 1];
            if ((previous.known.is(kGivenName) || isInitial(i - 1)) && !endsAsNoun(lowered)) {
                return !known.is(kSpeciesEpithet);
            }
            if (previous.known.is(kNameLead) || isTail(i)) {
                return true;
            }
        }
        return isBehindOf(i) || isTown(i) || isPartner(i) ||
               (current.isPossessive() && !current.isCompound && isPossessiveOfName(i));
    }

    /// "Si" in "Si (111)": an element and one of its planes.
    bool isFormula(std::size_t i) const {
        constexpr std::size_t kLongest = 2;
        const TextView behind = TextView(mTitle.text).substr(mWords[i].core.end);
        return word(i).size() <= kLongest && startsWith(behind, u" (") && behind.size() > 2 && isDigit(behind[2]);
    }

    /// "Mark" in "Mark Twain" and "Grace M. Hopper".
    bool isBeforeName(std::size_t i) const {
        if (i + 1 >= mWords.size() || !hasNeighbour(i + 1)) {
            return false;
        }
        return isInitial(i + 1) ||
               (!isFunction(i + 1) && isNameByItself(name(i + 1), lowerName(i + 1), mWords[i + 1].knownName));
    }

    /// "Quercus" in "Quercus robur": a heading leaves the second word of a species in small letters.
    bool isGenus(std::size_t i) const {
        if (i + 1 >= mWords.size()) {
            return false;
        }
        const Word& next = mWords[i + 1];
        if (!next.isJoined || mWords[i].isLower) {
            return false;
        }
        // In a heading a small word tells.
        const bool isEpithet = mStoodInHeadingCase && next.isLower && !next.isCompound &&
                               next.core.end - next.core.begin >= 4 &&
                               !next.known.is(kAnyFunctionWord | kParticle | kForeignParticle | kStaysInHeading);
        return next.known.is(kSpeciesEpithet) || (isEpithet && endsAsEpithet(lower(i + 1)));
    }

    /// "Western thought", but "western Kenya".
    bool isWestern(std::size_t i) const {
        return word(i) == u"Western" &&
               !(i + 1 < mWords.size() && hasNeighbour(i + 1) && mWords[i + 1].knownName.is(kPlace));
    }

    /// "May" and "March" beside a number or behind "in".
    bool isMonth(std::size_t i) const {
        if (!mWords[i].knownName.is(kAmbiguousMonth)) {
            return false;
        }
        const bool isBeforeNumber = i + 1 < mWords.size() && isDigit(word(i + 1).front());
        const bool isBehindNumber = hasNeighbour(i) && isDigit(word(i - 1).back());
        return isBeforeNumber || isBehindNumber || (isBehind(i, u"in") && mWords[i].isLast);
    }

    /// "the Decline of the West".
    bool isCompass(std::size_t i) const {
        return mWords[i].knownName.is(kCompassPoint) && isBehind(i, u"the") &&
               (i + 1 == mWords.size() || isFunction(i + 1));
    }

    /// "J." of "J. Smith".
    bool isInitial(std::size_t i) const {
        const Range core = mWords[i].core;
        return core.end - core.begin == 1 && mTitle.text[core.end] == u'.' && isCapital(mTitle.text[core.begin]);
    }

    /// "River" in "Hudson River", "University" in "Columbia University".
    bool isTail(std::size_t i) const {
        const Known known = mWords[i].knownName;
        if (!known.is(kNameTail | kInstitutionTail | kTailAtEnd)) {
            return false;
        }
        if (known.is(kTailAtEnd) && i + 1 < mWords.size() && hasNeighbour(i + 1) && !isFunction(i + 1)) {
            return false;
        }
        // "Oxford University Press", "Hogarth Press", but "London press".
        const bool isPress = name(i) == u"Press" && mWords[i - 1].known.is(kPlace);
        return isNameBefore(i) && !isPress && (known.is(kNameTail) || !endsAsAdjective(word(i - 1)));
    }

    bool isNameBefore(std::size_t i) const {
        const Word& previous = mWords[i - 1];
        if (previous.isCompound) {
            const TextView whole = lower(i - 1);
            const std::size_t hyphen = whole.find_last_of(u"-\u2013");
            const Range last = {previous.core.begin + hyphen + 1, previous.core.end};
            return previous.isKept ||
                   (hyphen != TextView::npos &&
                    isNameInCompound(slice(mTitle.text, last), mTitle.lower(last), mTitle.find(last), true));
        }
        return (previous.isKept && !previous.isLower) ||
               (previous.isFirst && isNameByItself(word(i - 1), lower(i - 1), previous.known));
    }

    /// "Battle of Hastings", "Duke of Norfolk".
    bool isBehindOf(std::size_t i) const {
        return isBehind(i, u"of") && hasNeighbour(i - 1) && mWords[i - 2].known.is(kOfLead) && !endsAsNoun(word(i));
    }

    /// "Shakespeare and Company".
    bool isPartner(std::size_t i) const {
        return mWords[i].knownName.is(kPartner) && isBehind(i, u"and") && hasNeighbour(i - 1) && isNameBefore(i - 1);
    }

    /// "Frost, Stevens, and Moore": where two of three are names, the third is one, too.
    void findSeriesOfNames() {
        constexpr std::size_t kAnd = 2;
        constexpr std::size_t kLast = 3;
        for (std::size_t i = 0; i + kLast < mWords.size(); ++i) {
            const std::size_t behind = i + kLast + 1;
            const bool beginsAlone = i == 0 || isFunction(i - 1);
            const bool endsAlone = behind == mWords.size() || !mWords[behind].isJoined || isFunction(behind);
            if (mTitle.text[mWords[i].core.end] != u',' || lower(i + kAnd) != u"and" || !beginsAlone || !endsAlone) {
                continue;
            }
            Word* const members[] = {&mWords[i], &mWords[i + 1], &mWords[i + kLast]};
            const auto isName = [](const Word* member) { return member->isKept && !member->hasOwnCase; };
            if (std::count_if(std::begin(members), std::end(members), isName) == 2) {
                std::for_each(std::begin(members), std::end(members), [](Word* member) { member->isKept = true; });
            }
        }
    }

    /// "in Flint, Michigan".
    bool isTown(std::size_t i) const {
        return i + 1 < mWords.size() && mTitle.text[mWords[i].core.end] == u',' && isBehind(i, u"in") &&
               (mWords[i + 1].known.is(kPlace) || mWords[i + 1].isInPhrase);
    }

    bool isPossessiveOfName(std::size_t i) const {
        return !endsAsAgent(lowerName(i)) && !mWords[i].knownName.is(kCommonPossessor);
    }

    /// A first part of a name that was found behind it: "South" of "South Sudan", "President" of "President
    /// Lincoln", "Mount" of "Mount Athos".
    bool isPartOfNameBehind(std::size_t i) {
        const Known known = mWords[i].known;
        if (!known.is(kNameLead | kOfLead | kOrganizationLead | kTitleOfPerson | kDirection) ||
            i + 1 >= mWords.size() || !hasNeighbour(i + 1) || mWords[i].isPossessive()) {
            return false;
        }
        // "Central and Eastern Europe".
        if (known.is(kDirection) && lower(i + 1) == u"and" && i + 2 < mWords.size() && hasNeighbour(i + 2)) {
            return mWords[i + 2].known.is(kDirection) && mWords[i + 2].isKept;
        }
        Word& next = mWords[i + 1];
        const TextView nextName = name(i + 1);
        if (known.is(kNameLead)) {
            return next.isKept;
        }
        // "Battle of Hastings", but not "kings of England".
        if (known.is(kOfLead) && nextName == u"of" && i + 2 < mWords.size()) {
            return mWords[i + 2].isKept && hasNeighbour(i + 2);
        }
        const bool isNational = word(i) == u"National" || word(i) == u"Royal";
        if (isNational && (next.knownName.is(kInstitutionTail) || nextName == u"Gallery" || nextName == u"Library")) {
            next.isKept = true;
            return true;
        }
        if (known.is(kTitleOfPerson)) {
            return next.knownName.is(kAnyName);
        }
        if (!known.is(kDirection) || !next.knownName.is(kPlace)) {
            return false;
        }
        const bool isLarge = startsWith(nextName, u"Europe") || startsWith(nextName, u"Africa") ||
                             startsWith(nextName, u"Asia") || nextName == u"Ireland" || nextName == u"California" ||
                             nextName == u"Australia" || nextName == u"Sahara" || nextName == u"Pacific" ||
                             nextName == u"Atlantic" || nextName == u"Samoa";
        return isLarge || !endsWith(word(i), u"ern");
    }

    const TitleText& mTitle;
    std::span<Word> mWords;
    const Lexicon& mLexicon;
    bool mStoodInHeadingCase;
};

}  // namespace

void findNames(const TitleText& title, std::span<Word> piece, bool stoodInHeadingCase) {
    PieceNames(title, piece, stoodInHeadingCase).find();
}

}  // namespace quorvel::titlecase
