#include "elements/author/names.h"

#include <algorithm>

#include "core/common_testing_functions.h"
#include "core/letter_case.h"
#include "core/procedure.h"
#include "elements/author/institutions.h"

namespace quorvel::authorwords {

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

bool areInitials(WordSpan words) {
    return std::all_of(words.begin(), words.end(), [](const Word& word) { return word.isInitials(); });
}

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

/// "A.T.", "JM", "C-C", "J", "YuI", "J-JCh": letters that each stand for a name.
bool areInitials(TextView word, bool isShouted) {
    if (word.size() > kLongestInitials) {
        return false;
    }
    std::size_t letters = 0;
    std::size_t soundsOfTwo = 0;
    bool hasStop = false;
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (word[i] == u'.') {
            hasStop = true;
        } else if (isCapital(word[i])) {
            ++letters;
        } else if (!isHyphen(word[i])) {
            const bool endsInSound = i + 1 == word.size() && letters > 1;
            if (!endsInSound && (i == 0 || !isDigraph(word[i - 1], word[i]))) {
                return false;
            }
            ++soundsOfTwo;
        }
    }
    return letters > (soundsOfTwo > 0 ? 1U : 0U) &&
           (hasStop || letters <= (isShouted ? kMostShoutedInitials : kMostInitials));
}

/// Writes "J. M." for "JM", "C.-C." for "C-C", "A. T." for "A.T.", "J.-J. Ch." for "J-JCh", "Yu. I." for "YuI".
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

/// The first names with each initial on its own and with its full stop, however they were printed.
void writeFirstNames(const Person& person, Text& firstNames) {
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
bool isLastNameFirst(WordSpan words) {
    return words.size() == 2 && !words[0].is(kFirstName) && words[0].shape == Shape::Name &&
           words[1].shape == Shape::Name && (words[0].is(kEastAsianLastName) || isHyphenedGivenName(words[1].text));
}

bool isArabicLastName(const Instrumented& element, const Word& word) {
    return procedure(element, u"isArabicLastName", {{u"word", word.text}}, [&] {
        return word.is(kArabicOpening) ||
               std::any_of(std::begin(kArabicPrefixes), std::end(kArabicPrefixes), [&](TextView prefix) {
                   return word.text.size() > prefix.size() && startsWith(word.text, prefix);
               });
    });
}

/// "Ibn Khaldun", "Ibn al-Haytham": no first names.
bool isArabicName(const Instrumented& element, WordSpan words) {
    return procedure(element, u"isArabicName", {{u"words", textOf(words)}}, [&] {
        return words.size() > 1 && words[0].is(kArabicOpening) &&
               (words.size() == 2 || isArabicLastName(element, words[1]));
    });
}

/// Whether a word that is neither the first nor the last begins the last name.
bool isPartialLastName(const Instrumented& element, const Word& word) {
    return procedure(element, u"isPartialLastName", {{u"word", word.text}}, [&] {
        if (word.isInitials()) {
            return false;
        }
        return word.is(kParticle | kPartialLastName) || word.isLower() || isArabicLastName(element, word);
    });
}

/// The "de" before this name stands with the first names.
bool dePartOfFirstName(const Instrumented& element, const Word& lastName) {
    return procedure(element, u"dePartOfFirstName", {{u"lastName", lastName.text}},
                     [&] { return isOneOf(toLower(lastName.text), kNamesWithoutDe); });
}

bool isSpanishY(const Instrumented& element, const Word& word) {
    return procedure(element, u"isSpanishY", {{u"word", word.text}},
                     [&] { return word.isLower() && word.is(kNameConjunction); });
}

/// The index of the last word of the first names, -1 when there are none: the last name begins at the
/// first word that belongs to one.
std::int16_t getFirstNameUbound(const Instrumented& element, WordSpan words) {
    return procedure(element, u"getFirstNameUbound", {{u"words", textOf(words)}}, [&]() -> std::int16_t {
        const auto n = std::min<std::size_t>(words.size(), INT16_MAX);
        if (n < 2 || (words[0].is(kArabicOpening) && isArabicName(element, words)) ||
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
            if (words[i].is(kSharedFirstName) && !words[i].isLower() && areInitials(words.first(i))) {
                // "W. Ben Towne" goes by his second name.
                continue;
            }
            if (isSpanishY(element, words[i])) {
                begin = std::max<std::size_t>(i - 1, 1);
            } else if (isPartialLastName(element, words[i]) || endsWithHyphenedParticle(words[i])) {
                begin = i;
            }
        }
        if (begin + 2 == n && words[begin].isLower() && dePartOfFirstName(element, words[begin + 1])) {
            ++begin;
        }
        return static_cast<std::int16_t>(begin - 1);
    });
}

/// "Hakim, Tawfiq al-" is al-Hakim, "Medici, Lorenzo de'" is de' Medici.
void moveApostrophePrefix(const Instrumented& element, Person& person) {
    procedure(element, u"moveApostrophePrefix", {{u"firstNames", person.first}}, [&] {
        const std::size_t blank = person.first.rfind(u' ');
        if (blank == TextView::npos || !isOneOf(person.first.substr(blank + 1), kApostrophePrefixes)) {
            return;
        }
        person.prefix = person.first.substr(blank + 1);
        person.first = trim(person.first.substr(0, blank));
    });
}

void parseAndRemovePostfix(const Instrumented& element, WordSpan& words, Person& person, std::size_t nameLength = 2) {
    procedure(element, u"parseAndRemovePostfix", {{u"words", textOf(words)}}, [&] {
        const WordSpan name = withoutPostfix(words, nameLength);
        if (name.size() < words.size()) {
            person.postfix = textOf(words.subspan(name.size()));
            words = name;
        }
    });
}

/// Where a postfix parts the first names from the last one, "Paul III Tornetta"; 0 where none does.
std::size_t innerPostfix(WordSpan words) {
    for (std::size_t i = 1; i + 1 < words.size(); ++i) {
        if (words[i].is(kPostfix) && isPostfixAt(words, i, 1)) {
            return i;
        }
    }
    return 0;
}

}  // namespace

/// One name that stands by itself, first names first.
Person parseAuthor(const Instrumented& element, WordSpan words) {
    Person person;
    procedure(element, u"parseAuthor", {{u"words", textOf(words)}}, [&] {
        if (words.size() > 1 && words.back().isBracketed) {
            person.supplied = words.back().text;
            words = words.first(words.size() - 1);
        }
        if (beginsWithThe(words)) {
            person.last = textOf(words);
            person.isGroup = true;
            return;
        }
        if (words.back().is(kPostfix)) {
            parseAndRemovePostfix(element, words, person);
        }
        if (const std::size_t inner = innerPostfix(words); inner != 0 && person.postfix.empty()) {
            person.first = textOf(words.first(inner));
            person.postfix = words[inner].text;
            person.last = textOf(words.subspan(inner + 1));
            return;
        }
        if (isLastNameFirst(words)) {
            person.last = words[0].text;
            person.first = words[1].text;
            return;
        }
        const auto firstNames = static_cast<std::size_t>(getFirstNameUbound(element, words) + 1);
        person.first = textOf(words.first(firstNames));
        person.last = textOf(words.subspan(firstNames));
    });
    return person;
}

Person parseReversedAuthor(const Instrumented& element, WordSpan last, WordSpan first) {
    Person person;
    // "Daumé, Hal III", "Daumé III, Hal"
    if (first.back().is(kPostfix)) {
        parseAndRemovePostfix(element, first, person, 1);
    } else if (last.back().is(kPostfix)) {
        parseAndRemovePostfix(element, last, person, 1);
    }
    person.last = textOf(last);
    if (first.size() > 1 && first.back().isBracketed) {
        person.supplied = first.back().text;
        first = first.first(first.size() - 1);
    }
    person.first = textOf(first);
    if (first.size() > 1 && first.back().isLower()) {
        moveApostrophePrefix(element, person);
    }
    return person;
}

Person parseCompactAuthor(const Instrumented& element, WordSpan words) {
    Person person;
    if (words.back().is(kPostfix)) {
        parseAndRemovePostfix(element, words, person);
    }
    // "Smith JA", "Smith J A"
    std::size_t initials = words.size() - 1;
    while (initials > 1 && words[initials - 1].isInitials()) {
        --initials;
    }
    person.last = textOf(words.first(initials));
    person.first = textOf(words.subspan(initials));
    return person;
}

bool isRomanNumeralPostfix(const Instrumented& element, TextView word) {
    return procedure(element, u"isRomanNumeralPostfix", {{u"word", word}}, [&] {
        return CommonTestingFunctions::isRomanNumeral(word) && word.find_first_not_of(kPostfixDigits) == TextView::npos;
    });
}

bool isFirstName(const Instrumented& element, const Word& word) {
    return procedure(element, u"isFirstName", {{u"word", word.text}}, [&] { return word.is(kFirstName); });
}

void store(const Person& person, AuthorPersons& persons) {
    if (person.last.empty() && person.first.empty()) {
        return;
    }
    if (person.isGroup && persons.firstGroup < 0) {
        persons.firstGroup = persons.size();
    }
    AuthorRecord& record = persons.add();
    record.lastName.append(person.prefix);
    if (!person.prefix.empty() && person.prefix.back() != u'-') {
        record.lastName.push_back(u' ');
    }
    record.lastName.append(person.last);
    writeFirstNames(person, record.firstNames);
    record.postfix = writtenPostfix(person.postfix);
}

}  // namespace quorvel::authorwords
