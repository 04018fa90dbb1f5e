// Sentence case: what keeps its capital in a title that stood in heading case.

#include <algorithm>

#include "core/letter_case.h"
#include "elements/title_case.h"

namespace quorvel::titlecase {

namespace {

using namespace titlewords;

// Endings of common words, which a name behind a given name does not have.
constexpr TextView kCommonEndings[] = {u"ing", u"tion", u"tions", u"ment", u"ments", u"ness", u"ology", u"ity", u"ism"};

// What is put to a name.
constexpr TextView kDerivations[] = {u"s", u"ism", u"ist", u"ization", u"ized", u"izing"};

// "Victorian", "Guatemalan", "Japanese", but not "librarian".
constexpr TextView kNameSuffixes[] = {u"ian", u"ean", u"ese"};
constexpr TextView kCommonSuffixes[] = {u"ician", u"arian", u"cean"};

// Endings of last names, which few common words have: "Lermontov", "Johnson", "Hamburg".
constexpr TextView kSurnameEndings[] = {u"berg",  u"burg",  u"burgh", u"bury", u"elli",  u"enko", u"etti",
                                        u"ham",   u"ini",   u"ius",   u"kov",  u"mann",  u"nov",  u"ov",
                                        u"ski",   u"sky",   u"son",   u"stan", u"stein", u"ucci", u"vich",
                                        u"ville", u"worth", u"shire", u"guez"};

// Endings of agents and qualities, whose possessive is no name's.
constexpr TextView kAgentEndings[] = {u"er", u"or", u"ist", u"ian", u"ing", u"ess", u"tion", u"ent", u"ant"};

constexpr TextView kAdjectiveEndings[] = {u"n", u"sh", u"ch", u"ese", u"ic"};

template <std::size_t N>
bool endsWithAny(TextView text, const TextView (&endings)[N]) {
    // Most endings are told by their last letter.
    return !text.empty() && std::any_of(std::begin(endings), std::end(endings), [&](TextView ending) {
        return text.back() == ending.back() && endsWith(text, ending);
    });
}

bool hasNameSuffix(TextView lowered) {
    if (endsWith(lowered, u"s")) {
        lowered.remove_suffix(1);
    }
    return lowered.size() >= 5 && endsWithAny(lowered, kNameSuffixes) && !endsWithAny(lowered, kCommonSuffixes) &&
           !Lexicon::instance().find(lowered, lowered).is(kCommonInNameSuffix);
}

bool hasSurnameEnding(TextView lowered, Known known) {
    // "Kolkata" cannot be told from "data", but "Palermo", "Nagasaki" and "Honolulu" look foreign.
    const char16_t last = lowered.empty() ? u' ' : lowered.back();
    const bool endsInVowel = last == u'o' || last == u'i' || last == u'u';
    return (lowered.size() >= 4 && endsInVowel && !known.is(kCommonInVowel)) ||
           (lowered.size() >= 6 && endsWithAny(lowered, kSurnameEndings) && !known.is(kCommonInSurnameEnding));
}

/// Known by itself, as a plural, or as what its ending was put to: "Kantianism", "Darwinists".
/// @param lowered the word in lower case
bool isProperName(TextView word, TextView lowered, Known known) {
    if (known.is(kAnyName)) {
        return true;
    }
    TextView stem = word;
    for (const TextView ending : kDerivations) {
        if (stem.size() > std::max<std::size_t>(3, 2 * ending.size()) && stem.back() == ending.back() &&
            endsWith(stem, ending)) {
            stem.remove_suffix(ending.size());
            if (Lexicon::instance().find(stem, lowered.substr(0, stem.size())).is(kAnyName)) {
                return true;
            }
        }
    }
    return hasNameSuffix(lowered.substr(0, stem.size())) || hasSurnameEnding(lowered, known);
}

bool hasForeignLetter(TextView lowered, Known known) {
    return std::any_of(lowered.begin(), lowered.end(),
                       [](char16_t unit) { return unit >= 0xC0 && isCasedLetter(unit); }) &&
           !known.is(kLoanWord);
}

/// Sets the letters of a piece as a sentence has them.
class SentenceCase {
public:
    SentenceCase(Text& text, const TitleText& title, std::span<Word> words, const Rules& rules)
        : mText(text), mTitle(title), mWords(words), mRules(rules), mLexicon(Lexicon::instance()) {}

    void run(bool capitalizeFirstWord) {
        findPhrases();
        findOrganizations();
        for (std::size_t i = 0; i < mWords.size(); ++i) {
            mWords[i].isKept = mWords[i].isKept || isName(i);
        }
        for (std::size_t i = mWords.size(); i-- > 0;) {
            mWords[i].isKept = mWords[i].isKept || isPartOfNameBehind(i);
        }
        for (std::size_t i = 0; i < mWords.size(); ++i) {
            const bool isCapitalized = i == 0 ? capitalizeFirstWord : mWords[i].isFirst && mRules.capitalizeSubtitle;
            write(mWords[i], isCapitalized);
        }
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
            }
        }
    }

    /// "American Heart Association", back from its last word.
    void findOrganizations() {
        constexpr std::size_t kLongest = 5;
        for (std::size_t i = 1; i < mWords.size(); ++i) {
            const Known last = mWords[i].known;
            if (last.is(kTailBehindArticle)) {
                findBehindArticle(i);
            }
            if (!last.is(kInstrumentTail | kOrganizationTail)) {
                continue;
            }
            const WordClass lead = last.is(kInstrumentTail) ? kName : kOrganizationLead;
            for (std::size_t k = i; i - k < kLongest && hasNeighbour(k); --k) {
                if (mWords[k - 1].known.is(lead)) {
                    keep(k - 1, i);
                    break;
                }
            }
        }
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

    bool isName(std::size_t i) const {
        const Word& current = mWords[i];
        const Known known = current.knownName;
        const TextView whole = name(i);
        const TextView lowered = lowerName(i);
        if (whole.size() == 1) {
            // "A" is an article, but for the A of "vitamin A".
            return whole != u"A" || (hasNeighbour(i) && mWords[i - 1].known.is(kLetterTaker));
        }
        if (isProperName(whole, lowered, known) || isMonth(i)) {
            return true;
        }
        if (isFunction(i)) {
            return false;
        }
        if ((current.hasAccents && hasForeignLetter(lowered, known)) || whole == u"Western" || isCompass(i)) {
            return true;
        }
        if (hasNeighbour(i)) {
            const Word& previous = mWords[i - 1];
            if ((previous.known.is(kGivenName) || isInitial(i - 1)) && !endsWithAny(lowered, kCommonEndings)) {
                return !known.is(kSpeciesEpithet);
            }
            if (previous.known.is(kNameLead) || isTail(i)) {
                return true;
            }
        }
        return isBehindOf(i) || isTown(i) || (current.isPossessive() && isPossessiveOfName(i));
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
        if (!known.is(kNameTail | kInstitutionTail)) {
            return false;
        }
        const Word& previous = mWords[i - 1];
        const bool isAfterName =
            previous.isKept || (previous.isFirst && isProperName(word(i - 1), lower(i - 1), previous.known));
        return isAfterName && (known.is(kNameTail) || !endsWithAny(word(i - 1), kAdjectiveEndings));
    }

    /// "Battle of Hastings", "Duke of Norfolk".
    bool isBehindOf(std::size_t i) const {
        return isBehind(i, u"of") && hasNeighbour(i - 1) && mWords[i - 2].known.is(kOfLead) &&
               !endsWithAny(word(i), kCommonEndings);
    }

    /// "in Flint, Michigan".
    bool isTown(std::size_t i) const {
        return i + 1 < mWords.size() && mTitle.text[mWords[i].core.end] == u',' && isBehind(i, u"in") &&
               (mWords[i + 1].known.is(kPlace) || mWords[i + 1].isInPhrase);
    }

    bool isPossessiveOfName(std::size_t i) const {
        return !endsWithAny(lowerName(i), kAgentEndings) && !mWords[i].knownName.is(kCommonPossessor);
    }

    /// A first part of a name that was found behind it: "South" of "South Sudan", "President" of "President
    /// Lincoln", "Mount" of "Mount Athos".
    bool isPartOfNameBehind(std::size_t i) {
        const Known known = mWords[i].known;
        if (!known.is(kNameLead | kOfLead | kOrganizationLead | kTitleOfPerson | kDirection) ||
            i + 1 >= mWords.size() || !hasNeighbour(i + 1) || mWords[i].isPossessive()) {
            return false;
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
                             nextName == u"Australia";
        return isLarge || !endsWith(word(i), u"ern");
    }

    void write(const Word& current, bool isCapitalized) {
        if (current.isCompound) {
            writeParts(current, isCapitalized);
        } else if (isCapitalized) {
            capitalizeAt(mText, current.core.begin);
        } else if (!current.isKept && !current.isLower && !hasOwnCase(slice(mTitle.text, current.name))) {
            lowerAt(mText, current.core.begin);
        }
    }

    void writeParts(const Word& current, bool isCapitalized) {
        splitWord(mTitle.text, current.core, mParts);
        for (const Range part : mParts) {
            const bool isFirst = part == mParts.front();
            if (isFirst && isCapitalized) {
                capitalizeAt(mText, part.begin);
                continue;
            }
            const TextView whole = withoutPossessive(slice(mTitle.text, part));
            const bool isKept = current.isInPhrase || (isFirst && current.isKept) ||
                                isPartKept({part.begin, part.begin + whole.size()});
            if (!isKept && !hasOwnCase(whole)) {
                lowerAt(mText, part.begin);
            }
        }
    }

    /// A part of a hyphenated word: by itself it has no neighbours.
    bool isPartKept(Range part) const {
        const TextView whole = slice(mTitle.text, part);
        const TextView lowered = mTitle.lower(part);
        const Known known = mTitle.find(part);
        return (whole.size() == 1 ? whole != u"A" : isProperName(whole, lowered, known)) ||
               hasForeignLetter(lowered, known);
    }

    Text& mText;
    const TitleText& mTitle;
    std::span<Word> mWords;
    const Rules& mRules;
    const Lexicon& mLexicon;
    // Of the hyphenated word that is written.
    std::vector<Range> mParts;
};

}  // namespace

void applySentence(Text& text, const TitleText& title, std::span<Word> piece, bool capitalizeFirstWord,
                   const Rules& rules) {
    SentenceCase(text, title, piece, rules).run(capitalizeFirstWord);
}

}  // namespace quorvel::titlecase
