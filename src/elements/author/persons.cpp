#include "elements/author/persons.h"

#include <algorithm>
#include <cstddef>

#include "core/letter_case.h"
#include "core/run_time_error.h"

namespace quorvel {

namespace {

struct Replacement {
    TextView find;
    TextView replacement;
};

// In this order: the last one makes the blanks of a name and those that came before into commas.
constexpr Replacement kKeywordReplacements[] = {
    {u" & ", u" "}, {u" and ", u" "}, {u"(", u""}, {u")", u""}, {u"/", u" "}, {u" ", u","},
};

/// The first letters of the words of first names, which two forms of a name have in common.
Text initialsOf(TextView firstNames) {
    Text initials;
    bool beginsWord = true;
    for (const char16_t unit : firstNames) {
        if (isCasedLetter(unit)) {
            if (beginsWord) {
                initials.push_back(unit);
            }
            beginsWord = false;
        } else {
            beginsWord = true;
        }
    }
    return toLower(initials);
}

bool areSamePerson(const AuthorRecord& one, const AuthorRecord& other) {
    const Text initials = initialsOf(one.firstNames);
    const Text otherInitials = initialsOf(other.firstNames);
    return equalsIgnoringCase(one.lastName, other.lastName) && initials == otherInitials;
}

}  // namespace

const AuthorRecord& AuthorPersons::at(std::int32_t index) const {
    if (index < 0 || index >= mSize) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    }
    return mRecords[static_cast<std::size_t>(index)];
}

AuthorRecord& AuthorPersons::at(std::int32_t index) {
    if (index < 0 || index >= mSize) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    }
    return mRecords[static_cast<std::size_t>(index)];
}

AuthorRecord& AuthorPersons::add() {
    if (isFull()) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    const auto index = static_cast<std::size_t>(mSize);
    if (index == mRecords.size()) {
        mRecords.emplace_back();
    }
    AuthorRecord& record = mRecords[index];
    record.lastName.clear();
    record.firstNames.clear();
    record.postfix.clear();
    ++mSize;
    return record;
}

void AuthorPersons::leave(TextView text) {
    residue = residue.empty() ? Text(text) : concatenate({text, u" ", residue});
}

void AuthorPersons::clearRecords() {
    mSize = 0;
    firstGroup = -1;
}

void AuthorPersons::clear() {
    clearRecords();
    authorType = kOrdinary;
    pseudoname.clear();
    hasEtAl = false;
    lastNameFirst = false;
    roles.fill(false);
    discussant.reset();
    residue.clear();
}

Text rowOf(const AuthorRecord& person) {
    Text row = person.lastName;
    if (!person.firstNames.empty() || !person.postfix.empty()) {
        row.append(u", ").append(person.firstNames);
    }
    if (!person.postfix.empty()) {
        row.append(u", ").append(person.postfix);
    }
    return row;
}

std::vector<Text> rowsOf(const AuthorPersons& persons) {
    std::vector<Text> rows;
    for (std::int16_t i = 0; i < persons.size(); ++i) {
        rows.push_back(rowOf(persons.at(i)));
    }
    return rows;
}

std::vector<Text> keywordsOf(const AuthorPersons& persons) {
    std::vector<Text> keywords;
    for (std::int16_t i = 0; i < persons.size(); ++i) {
        const AuthorRecord& person = persons.at(i);
        Text words =
            person.firstNames.empty() ? person.lastName : concatenate({person.firstNames, u" ", person.lastName});
        for (const Replacement& step : kKeywordReplacements) {
            words = replaceAll(words, step.find, step.replacement);
        }
        keywords.push_back(std::move(words));
    }
    return keywords;
}

Text mergedText(const AuthorPersons& persons, TextView andWord) {
    Text result;
    for (std::int16_t i = 0; i < persons.size(); ++i) {
        const AuthorRecord& person = persons.at(i);
        const bool isLast = i + 1 == persons.size();
        result.append(i == 0 ? TextView() : isLast ? andWord : TextView(u", "));
        result.append(person.firstNames).append(person.firstNames.empty() ? u"" : u" ");
        result.append(person.lastName);
        result.append(person.postfix.empty() ? u"" : u" ").append(person.postfix);
    }
    return result;
}

bool areSame(const AuthorPersons& one, const AuthorPersons& other) {
    bool isSame = one.size() == other.size() && one.hasEtAl == other.hasEtAl;
    for (std::int16_t i = 0; isSame && i < one.size(); ++i) {
        isSame = areSamePerson(one.at(i), other.at(i));
    }
    return isSame;
}

}  // namespace quorvel
