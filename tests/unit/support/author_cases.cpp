#include "support/author_cases.h"

#include <algorithm>
#include <istream>

#include "core/letter_case.h"

namespace quorvel::authorcases {

namespace {

constexpr std::size_t kColumns = 5;

std::vector<std::string> columnsOf(const std::string& line, const std::string& separator) {
    std::vector<std::string> columns;
    std::size_t from = 0;
    for (std::size_t at = line.find(separator); at != std::string::npos; at = line.find(separator, from)) {
        columns.push_back(line.substr(from, at - from));
        from = at + separator.size();
    }
    columns.push_back(line.substr(from));
    return columns;
}

/// Letters alone decide: apostrophes and hyphens have several signs, full stops come and go.
Text plain(TextView text) {
    Text result;
    for (const char16_t unit : text) {
        if (unit == u'\u2019' || unit == u'\u02BC') {
            result.push_back(u'\'');
        } else if (unit == u'\u2010' || unit == u'\u2011') {
            result.push_back(u'-');
        } else if (unit == u'\u00A0') {
            result.push_back(u' ');
        } else if (unit != u'.') {
            result.push_back(unit);
        }
    }
    return Text(trim(result));
}

/// "Jean-Paul A.T." as Jean, Paul, A, T.
std::vector<Text> wordsOf(TextView firstNames) {
    std::vector<Text> words(1);
    for (const char16_t unit : firstNames) {
        if (unit == u' ' || unit == u'.' || unit == u'-' || unit == u'\u2010' || unit == u'\u00A0') {
            words.emplace_back();
        } else {
            words.back().push_back(unit == u'\u2019' ? u'\'' : unit);
        }
    }
    words.erase(std::remove(words.begin(), words.end(), Text()), words.end());
    return words;
}

bool matches(const Text& expected, const Text& read) {
    return read.size() == 1 || expected.size() == 1 ? toUpper(expected.substr(0, 1)) == toUpper(read.substr(0, 1))
                                                    : expected == read;
}

}  // namespace

std::vector<Case> readCases(std::istream& file) {
    std::vector<Case> cases;
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        const std::vector<std::string> columns = columnsOf(line, "\t");
        if (columns.size() < kColumns || columns[0].starts_with("#")) {
            continue;
        }
        Case list;
        list.id = columns[0];
        list.form = columns[1];
        list.isCut = columns[2] == "cut";
        list.printed = textOf(columns[3]);
        for (const std::string& person : columnsOf(columns[4], " ; ")) {
            std::vector<std::string> parts = columnsOf(person, "|");
            parts.resize(3);
            list.persons.push_back({textOf(parts[0]), textOf(parts[1]), textOf(parts[2])});
        }
        cases.push_back(std::move(list));
    }
    return cases;
}

bool isSamePerson(const AuthorRecord& expected, const AuthorRecord& read) {
    const std::vector<Text> words = wordsOf(expected.firstNames);
    const std::vector<Text> readWords = wordsOf(read.firstNames);
    return plain(expected.lastName) == plain(read.lastName) && plain(expected.postfix) == plain(read.postfix) &&
           std::equal(words.begin(), words.end(), readWords.begin(), readWords.end(), matches);
}

bool areSamePersons(const std::vector<AuthorRecord>& expected, const std::vector<AuthorRecord>& read) {
    return std::equal(expected.begin(), expected.end(), read.begin(), read.end(), isSamePerson);
}

Kinds kindsOf(const Case& list) {
    Kinds kinds;
    for (const AuthorRecord& person : list.persons) {
        kinds.hasGroup = kinds.hasGroup || person.firstNames.empty();
        const std::size_t blank = person.lastName.find(u' ');
        kinds.hasParticle = kinds.hasParticle || (!person.firstNames.empty() && blank != Text::npos &&
                                                  (person.lastName[0] == toLower(person.lastName)[0] || blank <= 3));
    }
    return kinds;
}

}  // namespace quorvel::authorcases
