#include <algorithm>

#include "core/common_testing_functions.h"
#include "core/letter_case.h"
#include "core/procedure.h"
#include "elements/author/author.h"

/// From a name in direct order to its parts: where the last name begins, postfixes, prefixes.
namespace quorvel {

using namespace authorwords;

namespace {

// Numerals that people bear; the other Roman digits are initials.
constexpr TextView kPostfixDigits = u"IVX";
// "de" that stands with the first names: "Beauvoir, Simone de".
constexpr TextView kNamesWithoutDe[] = {u"brigron", u"beauvoir"};
// Before these a "de" opens a second first name, not the last name: "Maria de Lourdes Silva", "María de
// la Luz Hernández".
constexpr TextView kNamesBeforeDe[] = {u"Maria", u"María", u"Marie"};
// Moved in front of the last name: "Hakim, Tawfiq al-".
constexpr TextView kApostrophePrefixes[] = {u"al-", u"el-", u"Al-", u"El-", u"de'", u"de\u2019"};
constexpr TextView kArabicPrefixes[] = {u"al-", u"el-", u"Al-", u"El-"};

// "J.-P.A.T." is the longest that is met.
constexpr std::size_t kLongestInitials = 12;
constexpr std::size_t kMostInitials = 5;
constexpr std::size_t kMostShoutedInitials = 2;

/// "Neuenschwander-el Massioui": the particle hangs on the word before.
bool endsWithHyphenedParticle(const Word& word) {
    const std::size_t hyphen = word.text.rfind(u'-');
    return hyphen != TextView::npos && hyphen > 0 && hyphen + 1 < word.text.size() &&
           wordOf(word.text.substr(hyphen + 1)).isLower() && wordOf(word.text.substr(hyphen + 1)).is(kParticle);
}

/// "Wu-chi": a given name as Chinese and Japanese names were romanised, with a small letter behind the
/// hyphen.
bool isHyphenedGivenName(TextView text) {
    const std::size_t hyphen = text.find(u'-');
    return hyphen != TextView::npos && hyphen > 0 && hyphen + 1 < text.size() && isCapital(text[0]) &&
           text[hyphen + 1] >= u'a' && text[hyphen + 1] <= u'z';
}

bool hasHyphen(TextView text) {
    return text.find(u'-') != TextView::npos;
}

bool isHyphen(char16_t unit) {
    return unit == u'-' || unit == u'\u2010' || unit == u'\u2011';
}

/// "A.T.", "JM", "C-C", "J", "J-JCh": letters that each stand for a name.
bool areInitials(TextView word, bool isShouted) {
    if (word.size() > kLongestInitials) {
        return false;
    }
    std::size_t letters = 0;
    bool hasStop = false;
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (word[i] == u'.') {
            hasStop = true;
        } else if (isCapital(word[i])) {
            ++letters;
        } else if (!isHyphen(word[i]) && (i + 1 < word.size() || letters < 2)) {
            return false;
        }
    }
    return letters > 0 && (hasStop || letters <= (isShouted ? kMostShoutedInitials : kMostInitials));
}

/// Writes "J. M." for "JM", "C.-C." for "C-C", "A. T." for "A.T.", "J.-J. Ch." for "J-JCh".
void appendInitials(TextView word, Text& firstNames) {
    bool isFirst = true;
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (word[i] == u'.' || isHyphen(word[i])) {
            continue;
        }
        if (!isFirst) {
            firstNames.push_back(isHyphen(word[i - 1]) ? u'-' : u' ');
        }
        firstNames.push_back(word[i]);
        if (i + 1 < word.size() && word[i + 1] != u'.' && !isHyphen(word[i + 1]) && !isCapital(word[i + 1])) {
            firstNames.push_back(word[++i]);
        }
        firstNames.push_back(u'.');
        isFirst = false;
    }
}

}  // namespace

/// The first names with each initial on its own and with its full stop, however they were printed.
void OutputTemplateAuthor::writeFirstNames(const Person& person, Text& firstNames) {
    for (std::size_t from = 0; from < person.first.size();) {
        const std::size_t end = std::min(person.first.find(u' ', from), person.first.size());
        const TextView word = person.first.substr(from, end - from);
        if (!firstNames.empty()) {
            firstNames.push_back(u' ');
        }
        if (areInitials(word, person.isShouted)) {
            appendInitials(word, firstNames);
        } else {
            firstNames.append(word);
        }
        from = end + 1;
    }
    if (!person.supplied.empty()) {
        firstNames.append(firstNames.empty() ? u"" : u" ").append(person.supplied);
    }
}

/// "Chao Wu-chi", "Kurosawa Akira": the last name stands first without a comma.
bool OutputTemplateAuthor::isLastNameFirst(WordSpan words) {
    return words.size() == 2 && !words[0].is(kFirstName) && words[0].shape == Shape::Name &&
           words[1].shape == Shape::Name && (words[0].is(kEastAsianLastName) || isHyphenedGivenName(words[1].text));
}

bool OutputTemplateAuthor::beginsWithThe(WordSpan words) {
    return words.size() > 1 && words[0].text == u"The";
}

/// The index of the last word of the first names, -1 when there are none: the last name begins at the
/// first word that belongs to one.
std::int16_t OutputTemplateAuthor::getFirstNameUbound(WordSpan words) const {
    return procedure(*this, u"getFirstNameUbound", {{u"words", authorwords::textOf(words)}}, [&]() -> std::int16_t {
        const auto n = std::min<std::size_t>(words.size(), INT16_MAX);
        if (n < 2 || (words[0].is(kArabicOpening) && isArabicName(words)) ||
            (words[0].isLower() && words[0].is(kParticle | kLowerParticle))) {
            return -1;
        }
        std::size_t begin = n - 1;
        if (words[begin].is(kFamilySuffix) && n > 2) {
            --begin;
        }
        for (std::size_t i = 1; i < begin; ++i) {
            // Nearly all words are initials and plain names that no rule knows.
            if (words[i].isInitials() ||
                (words[i].classes == kNoClass && !words[i].isLower() && !hasHyphen(words[i].text))) {
                continue;
            }
            if (words[i].isLower() && isOneOf(words[i - 1].text, kNamesBeforeDe)) {
                std::size_t name = i;
                while (name < n && words[name].isLower()) {
                    ++name;
                }
                if (name + 1 < n && !words[name + 1].isLower()) {
                    i = name;
                    continue;
                }
            }
            if (isSpanishY(words[i])) {
                begin = std::max<std::size_t>(i - 1, 1);
            } else if (isPartialLastName(words[i]) || endsWithHyphenedParticle(words[i])) {
                begin = i;
            }
        }
        if (begin + 2 == n && words[begin].isLower() && dePartOfFirstName(words[begin + 1])) {
            ++begin;
        }
        return static_cast<std::int16_t>(begin - 1);
    });
}

/// Whether a word that is neither the first nor the last begins the last name.
bool OutputTemplateAuthor::isPartialLastName(const Word& word) const {
    return procedure(*this, u"isPartialLastName", {{u"word", word.text}}, [&] {
        if (word.isInitials()) {
            return false;
        }
        return word.is(kParticle | kPartialLastName) || word.isLower() || isArabicLastName(word);
    });
}

/// The "de" before this name stands with the first names.
bool OutputTemplateAuthor::dePartOfFirstName(const Word& lastName) const {
    return procedure(*this, u"dePartOfFirstName", {{u"lastName", lastName.text}},
                     [&] { return isOneOf(toLower(lastName.text), kNamesWithoutDe); });
}

/// "Ibn Khaldun", "Ibn al-Haytham": no first names.
bool OutputTemplateAuthor::isArabicName(WordSpan words) const {
    return procedure(*this, u"isArabicName", {{u"words", authorwords::textOf(words)}}, [&] {
        return words.size() > 1 && words[0].is(kArabicOpening) && (words.size() == 2 || isArabicLastName(words[1]));
    });
}

bool OutputTemplateAuthor::isArabicLastName(const Word& word) const {
    return procedure(*this, u"isArabicLastName", {{u"word", word.text}}, [&] {
        return word.is(kArabicOpening) ||
               std::any_of(std::begin(kArabicPrefixes), std::end(kArabicPrefixes), [&](TextView prefix) {
                   return word.text.size() > prefix.size() && startsWith(word.text, prefix);
               });
    });
}

/// "Hakim, Tawfiq al-" is al-Hakim, "Medici, Lorenzo de'" is de' Medici.
void OutputTemplateAuthor::moveApostrophePrefix(Person& person) const {
    procedure(*this, u"moveApostrophePrefix", {{u"firstNames", person.first}}, [&] {
        const std::size_t blank = person.first.rfind(u' ');
        if (blank == TextView::npos || !isOneOf(person.first.substr(blank + 1), kApostrophePrefixes)) {
            return;
        }
        person.prefix = person.first.substr(blank + 1);
        person.first = trim(person.first.substr(0, blank));
    });
}

bool OutputTemplateAuthor::isSpanishY(const Word& word) const {
    return procedure(*this, u"isSpanishY", {{u"word", word.text}},
                     [&] { return word.isLower() && word.is(kNameConjunction); });
}

bool OutputTemplateAuthor::isFirstName(const Word& word) const {
    return procedure(*this, u"isFirstName", {{u"word", word.text}}, [&] { return word.is(kFirstName); });
}

void OutputTemplateAuthor::parseAndRemovePostfix(WordSpan& words, Person& person) const {
    procedure(*this, u"parseAndRemovePostfix", {{u"words", authorwords::textOf(words)}}, [&] {
        const WordSpan name = withoutPostfix(words);
        if (name.size() < words.size()) {
            person.postfix = authorwords::textOf(words.subspan(name.size()));
            words = name;
        }
    });
}

bool OutputTemplateAuthor::isRomanNumeralPostfix(TextView word) const {
    return procedure(*this, u"isRomanNumeralPostfix", {{u"word", word}}, [&] {
        return CommonTestingFunctions::isRomanNumeral(word) && word.find_first_not_of(kPostfixDigits) == TextView::npos;
    });
}

}  // namespace quorvel
