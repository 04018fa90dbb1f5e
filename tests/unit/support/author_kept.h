#pragma once

#include <map>

#include "core/letter_case.h"
#include "elements/author/author.h"
#include "elements/author/words.h"

/// No name is ever lost: what was read holds every letter of the text, and what is written every person.
namespace quorvel::test {

/// How often each letter and digit stands in a text.
class LetterCount {
public:
    void add(TextView text, int times = 1) {
        for (const char16_t unit : text) {
            if (isDigit(unit) || isCasedLetter(unit)) {
                mCounts[unit] += times;
            }
        }
    }
    /// The letters that are missing here and stand in the other one.
    Text missingOf(const LetterCount& other) const {
        Text missing;
        for (const auto& [unit, count] : other.mCounts) {
            const auto own = mCounts.find(unit);
            missing.append(static_cast<std::size_t>(std::max(0, count - (own == mCounts.end() ? 0 : own->second))),
                           unit);
        }
        return missing;
    }

private:
    std::map<char16_t, int> mCounts;
};

/// The letters of a text that the element has neither among its persons nor left over, those of tags, and-words and
/// the marks of incomplete lists, discussions and pseudonyms excepted.
inline Text lostLetters(TextView text, const OutputTemplateAuthor& author) {
    using namespace authorwords;
    constexpr TextView kMarks[] = {u"others", u"in", u"of", u"pseud"};
    LetterCount expected;
    const Text cleaned = cleanUp(text);
    for (std::size_t from = 0; from < cleaned.size();) {
        const std::size_t end = std::min(cleaned.find_first_of(u" ,;[]:", from), cleaned.size());
        const TextView word = TextView(cleaned).substr(from, end - from);
        const bool isMark = word.empty() || wordOf(word).is(kAnd | kEt | kAl | kAnyTag | kTagOrnament | kDiscussion) ||
                            isOneOf(trim(toLower(word), u".()?"), kMarks);
        if (!isMark) {
            expected.add(word);
        }
        from = end + 1;
    }
    LetterCount kept;
    const AuthorPersons& persons = author.persons();
    for (std::int16_t i = 0; i < persons.size(); ++i) {
        kept.add(persons.at(i).lastName);
        kept.add(persons.at(i).firstNames);
        kept.add(persons.at(i).postfix);
    }
    if (persons.discussant) {
        kept.add(persons.discussant->lastName);
        kept.add(persons.discussant->firstNames);
        kept.add(persons.discussant->postfix);
    }
    kept.add(persons.pseudoname);
    kept.add(persons.residue);
    return kept.missingOf(expected);
}

/// The persons whom an output leaves out although the style does not shorten the list; empty when all are there.
/// Letters alone count: the assembly moves marks.
inline Text unwrittenPersons(TextView output, const OutputTemplateAuthor& author) {
    const auto lettersOf = [](TextView text) {
        Text letters;
        std::copy_if(text.begin(), text.end(), std::back_inserter(letters),
                     [](char16_t unit) { return isDigit(unit) || isCasedLetter(unit); });
        return letters;
    };
    const Text written = lettersOf(output);
    Text unwritten;
    for (std::int16_t i = 0; i < author.numAuthors(); ++i) {
        const Text& name = author.person(i).lastName;
        if (!contains(written, lettersOf(name))) {
            unwritten += name + u"; ";
        }
    }
    return unwritten;
}

}  // namespace quorvel::test
