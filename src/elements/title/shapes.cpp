#include "elements/title/shapes.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "core/letter_case.h"
#include "elements/title/endings.h"

namespace quorvel::titleshapes {

using namespace titlewords;
using words::Known;
using words::Lexicon;

namespace {

constexpr TextView kNounEndings[] = {u"ing", u"tion", u"tions", u"ment", u"ments", u"ness", u"ology", u"ity", u"ism"};
constexpr TextView kAgentEndings[] = {u"er", u"or", u"ist", u"ian", u"ing", u"ess", u"tion", u"ent", u"ant"};
constexpr TextView kAdjectiveEndings[] = {u"an", u"sh", u"ch", u"ese", u"ic"};
constexpr TextView kQualityEndings[] = {u"al",  u"ic",   u"ive",  u"ous",  u"ary",
                                        u"ful", u"less", u"able", u"ible", u"ish"};
constexpr TextView kEpithetEndings[] = {u"us", u"um", u"is", u"a", u"ae", u"ii", u"ensis", u"oides", u"ense", u"ans"};
constexpr TextView kDerivedEndings[] = {u"ed",  u"ing", u"able", u"ation", u"en",  u"al",
                                        u"ive", u"ic",  u"ly",   u"ance",  u"ence"};

// What is put to a name, and to a people only: "Americanized", but "pasteurized".
constexpr TextView kDerivations[] = {u"s", u"ism", u"ist"};
constexpr TextView kPeopleDerivations[] = {u"ization", u"ized", u"izing", u"isation", u"ised", u"ising"};

// "Victorian", "Guatemalan", "Japanese", but not "librarian" and "hypotheses".
constexpr TextView kPeopleEndings[] = {u"ian", u"ean", u"ese"};
// The shortest stem in front of the ending of a quality: not "live".
constexpr std::size_t kShortestStem = 3;
constexpr TextView kCommonEndings[] = {u"ician", u"arian", u"cean", u"these", u"enese", u"egese", u"phorese"};

// Families and orders: "Asteraceae", "Felidae", "Passeriformes".
constexpr TextView kTaxonEndings[] = {u"aceae", u"idae", u"viridae", u"virales", u"iformes"};

// Last names and towns, which few common words end like: "Lermontov", "Johnson", "Hamburg".
constexpr TextView kSurnameEndings[] = {u"berg",  u"burg",  u"burgh", u"bury", u"elli",  u"enko", u"etti",
                                        u"ham",   u"ini",   u"ius",   u"kov",  u"mann",  u"nov",  u"ov",
                                        u"ski",   u"sky",   u"son",   u"stan", u"stein", u"ucci", u"vich",
                                        u"ville", u"worth", u"shire", u"guez"};

bool hasPeopleEnding(TextView lowered) {
    if (endsWith(lowered, u"s")) {
        lowered.remove_suffix(1);
    }
    return lowered.size() >= 5 && endsWithAny<kPeopleEndings>(lowered) && !endsWithAny<kCommonEndings>(lowered) &&
           !Lexicon::instance().find(lowered, lowered).is(kCommonInNameSuffix);
}

bool hasSurnameEnding(TextView lowered, Known known) {
    return lowered.size() >= 6 && endsWithAny<kSurnameEndings>(lowered) && !endsWith(lowered, u"person") &&
           !known.is(kCommonInSurnameEnding);
}

/// Takes an ending off a word that is long enough to have it.
bool takesOff(TextView& word, TextView ending) {
    if (word.back() != ending.back() || word.size() <= std::max<std::size_t>(3, 2 * ending.size()) ||
        !word.ends_with(ending)) {
        return false;
    }
    word.remove_suffix(ending.size());
    return true;
}

bool isListed(TextView stem, TextView lowered, WordClasses classes) {
    return Lexicon::instance().find(stem, lowered.substr(0, stem.size())).is(classes);
}

/// What only long words can be: "Americanized", "Felidae".
bool isLongName(TextView word, TextView lowered) {
    for (const TextView ending : kPeopleDerivations) {
        if (takesOff(word, ending)) {
            return isListed(word, lowered, kPlace);
        }
    }
    return endsWithAny<kTaxonEndings>(lowered);
}

}  // namespace

bool isProperName(TextView word, TextView lowered, Known known) {
    if (known.is(kAnyName)) {
        return true;
    }
    if (known.is(kCommonPlural)) {
        return false;
    }
    TextView stem = word;
    for (const TextView ending : kDerivations) {
        // "Marks" and "Miles" are no plurals of given names.
        if (takesOff(stem, ending) && isListed(stem, lowered, kPlace | kName)) {
            return true;
        }
    }
    constexpr std::size_t kLong = 7;
    return (word.size() >= kLong && isLongName(word, lowered)) || hasPeopleEnding(lowered.substr(0, stem.size())) ||
           hasSurnameEnding(lowered, known);
}

bool endsAsForeign(TextView lowered, Known known) {
    const char16_t last = lowered.empty() ? u' ' : lowered.back();
    return lowered.size() >= 4 && (last == u'o' || last == u'i' || last == u'u') && !known.is(kCommonInVowel);
}

bool isNameByItself(TextView word, TextView lowered, Known known) {
    return isProperName(word, lowered, known) || endsAsForeign(lowered, known);
}

bool isNameInCompound(TextView part, TextView lowered, Known known, bool isLast) {
    if (part.size() == 1) {
        return part != u"A";
    }
    return isProperName(part, lowered, known) || (isLast && endsAsForeign(lowered, known)) ||
           hasForeignLetter(lowered, known);
}

bool hasForeignLetter(TextView lowered, Known known) {
    return std::any_of(lowered.begin(), lowered.end(),
                       [](char16_t unit) { return unit >= 0xC0 && isCasedLetter(unit); }) &&
           !known.is(kLoanWord);
}

bool endsAsNoun(TextView lowered) {
    return endsWithAny<kNounEndings>(lowered);
}
bool endsAsAgent(TextView lowered) {
    return endsWithAny<kAgentEndings>(lowered);
}
bool endsAsAdjective(TextView lowered) {
    return endsWithAny<kAdjectiveEndings>(lowered);
}
bool endsAsQuality(TextView lowered) {
    return std::any_of(std::begin(kQualityEndings), std::end(kQualityEndings), [&](TextView ending) {
        return lowered.size() >= kShortestStem + ending.size() && endsWith(lowered, ending);
    });
}
bool endsAsPeople(TextView lowered) {
    return endsWithAny<kPeopleEndings>(lowered);
}
bool endsAsEpithet(TextView lowered) {
    return endsWithAny<kEpithetEndings>(lowered);
}
bool endsAsDerived(TextView lowered) {
    return endsWithAny<kDerivedEndings>(lowered);
}

}  // namespace quorvel::titleshapes
