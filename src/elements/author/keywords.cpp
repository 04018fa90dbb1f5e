#include <algorithm>

#include "core/letter_case.h"
#include "core/procedure.h"
#include "elements/author/author.h"

/// The persons as other texts: rows of the author form, the data base, keywords, comparison.
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
constexpr TextView kPseudonymMark = u"pseud.";
constexpr TextView kPersonSeparator = u"; ";

std::size_t at(std::int32_t index) {
    return static_cast<std::size_t>(index);
}

/// "Last, First, Postfix"; empty parts at the end are left out.
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

std::vector<Text> OutputTemplateAuthor::authors() const {
    return procedure(*this, u"authors[Get]", kNoParameters, [&] {
        std::vector<Text> rows;
        for (std::int16_t i = 0; i < mNumAuthors; ++i) {
            rows.push_back(rowOf(author(i)));
        }
        return rows;
    });
}

void OutputTemplateAuthor::authors(const std::vector<Text>& values) {
    procedure(*this, u"authors[Let]", {{u"values", values}}, [&] {
        mNumAuthors = 0;
        mFirstGroupAuthorIndex = -1;
        for (const Text& value : values) {
            const Text row = cleanUp(value);
            if (row.empty()) {
                continue;
            }
            const ListText list{row};
            Person person;
            std::vector<Text> parts = split(row, u", ");
            if (isInstitutionalAuthor(list.words())) {
                person.last = row;
                person.isGroup = true;
            } else if (parts.size() == 1) {
                person = parseAuthor(list.words());
            } else {
                person.last = parts[0];
                person.first = parts[1];
                person.postfix = parts.size() > 2 ? TextView(parts[2]) : TextView();
            }
            store(person);
        }
    });
}

Text OutputTemplateAuthor::collapsePseudoToFirstName(TextView firstAuthor) const {
    return procedure(*this, u"collapsePseudoToFirstName", {{u"firstAuthor", firstAuthor}}, [&] {
        const bool isUnknown = Pseudoname.empty() || Pseudoname == kPseudonymMark;
        return isUnknown ? Text(firstAuthor) : concatenate({firstAuthor, u" [", Pseudoname, u"]"});
    });
}

Text OutputTemplateAuthor::authorsForQVDb() const {
    return procedure(*this, u"authorsForQVDb[Get]", kNoParameters, [&] {
        Text result;
        for (std::int16_t i = 0; i < mNumAuthors; ++i) {
            result.append(i == 0 ? TextView() : kPersonSeparator).append(rowOf(author(i)));
        }
        return result;
    });
}

std::vector<Text> OutputTemplateAuthor::toKeywordList() const {
    return procedure(*this, u"toKeywordList", kNoParameters, [&] {
        std::vector<Text> keywords;
        for (std::int16_t i = 0; i < mNumAuthors; ++i) {
            Text words = author(i).lastName;
            if (!author(i).firstNames.empty()) {
                words = concatenate({author(i).firstNames, u" ", words});
            }
            for (const Replacement& step : kKeywordReplacements) {
                words = replaceAll(words, step.find, step.replacement);
            }
            keywords.push_back(std::move(words));
        }
        return keywords;
    });
}

Text OutputTemplateAuthor::toMergedString() const {
    return procedure(*this, u"toMergedString", kNoParameters, [&] {
        const TextView andWord = contains(mAndSeparator, u"&") ? u" & " : u" and ";
        Text result;
        for (std::int16_t i = 0; i < mNumAuthors; ++i) {
            const bool isLast = i + 1 == mNumAuthors;
            result.append(i == 0 ? TextView() : isLast ? andWord : TextView(u", "));
            result.append(author(i).firstNames).append(author(i).firstNames.empty() ? u"" : u" ");
            result.append(author(i).lastName);
            result.append(author(i).postfix.empty() ? u"" : u" ").append(author(i).postfix);
        }
        return result;
    });
}

bool OutputTemplateAuthor::isSameAuthor(TextView str1, TextView str2) {
    return procedure(*this, u"isSameAuthor", {{u"str1", str1}, {u"str2", str2}}, [&] {
        // Read by elements of their own, so that this one's persons stay.
        OutputTemplateAuthor one;
        OutputTemplateAuthor other;
        Text text(str1);
        Text otherText(str2);
        one.Parse(text, {});
        other.Parse(otherText, {});
        bool isSame = one.mNumAuthors == other.mNumAuthors && one.HasEtAl == other.HasEtAl;
        for (std::size_t i = 0; isSame && i < at(one.mNumAuthors); ++i) {
            isSame = areSamePerson(one.mAuthors[i], other.mAuthors[i]);
        }
        return isSame;
    });
}

}  // namespace quorvel
