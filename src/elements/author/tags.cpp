#include "elements/author/tags.h"

#include <algorithm>

#include "core/letter_case.h"
#include "core/procedure.h"

namespace quorvel::authorwords {

namespace {

struct RoleOfTag {
    std::uint32_t wordClass;
    AuthorPersons::Role role;
};
constexpr RoleOfTag kRolesOfTags[] = {
    {kEditorTag, AuthorPersons::kEditor},
    {kCompilerTag, AuthorPersons::kCompiler},
    {kTranslatorTag, AuthorPersons::kTranslator},
};

constexpr TextView kSeries = u"series";

bool hasParenthesis(TextView text) {
    return text.front() == u'(' || text.back() == u')';
}

/// "ed.", "(Ed.", "Ed." but not "Ed", which is a first name, nor the initials of "Smith ED."
bool canBeTag(const Word& word) {
    const bool isInitials = word.text.size() > 1 && isCapital(word.text[0]) && isCapital(word.text[1]);
    return word.is(kAnyTag | kTagOrnament) && !isInitials &&
           (word.isLower() || word.endsWithStop || hasParenthesis(word.text));
}

bool parseAnthologyTag(AuthorReading& reading, const Word& word) {
    return procedure(reading.element(), u"parseAnthologyTag", {{u"word", word.text}}, [&] {
        bool isTag = false;
        for (const RoleOfTag& tag : kRolesOfTags) {
            if (word.is(tag.wordClass)) {
                reading.persons.roles[static_cast<std::size_t>(tag.role)] = true;
                isTag = true;
            }
        }
        if (word.is(kTagOrnament)) {
            reading.persons.roles[AuthorPersons::kEditor] = true;
            isTag = true;
        }
        return isTag;
    });
}

/// "Smith, J. (Ed.), & Jones, K. (Trans.)": a tag behind one of several persons. The element has one set
/// of roles for all.
void removeInnerTags(AuthorReading& reading) {
    AuthorListText& text = reading.list;
    Words& words = text.words();
    std::size_t kept = 0;
    for (const Word& word : words) {
        const bool isTag = kept > 0 && word.is(kAnyTag) && word.text.front() == u'(' && word.text.back() == u')';
        if (!isTag || !parseAnthologyTag(reading, word)) {
            words[kept++] = word;
        }
    }
    words.resize(kept);
}

bool isEdition(const Instrumented& element, TextView word) {
    return procedure(element, u"isEdition", {{u"word", word}}, [&] {
        const Word edition = wordOf(word);
        return edition.is(kEditionWord) &&
               (edition.isLower() || edition.shape == Shape::Number || edition.endsWithStop);
    });
}

/// A series editor is none of this work.
bool isEditor(const Instrumented& element, WordSpan words) {
    return procedure(element, u"isEditor", {{u"words", textOf(words)}}, [&] {
        return std::none_of(words.begin(), words.end(),
                            [](const Word& word) { return startsWith(toLower(word.text), kSeries); });
    });
}

/// "2nd ed.", "rev. ed.": the last word is the "ed" and the one before it says which edition.
bool editionMisinterpretedAsEditor(const Instrumented& element, WordSpan words) {
    return procedure(element, u"editionMisinterpretedAsEditor", {{u"words", textOf(words)}}, [&] {
        return words.size() > 1 && words.back().is(kEditorTag) && isEdition(element, words[words.size() - 2].text);
    });
}

/// Takes the tags off the end of the list: ", eds.", "(Ed. & Trans.)", ", guest ed.".
bool processEditor(AuthorReading& reading) {
    AuthorListText& text = reading.list;
    return procedure(reading.element(), u"processEditor", {{u"text", text.text()}}, [&] {
        Words& words = text.words();
        const std::size_t all = words.size();
        std::size_t begin = all;
        bool hasTag = false;
        while (begin > 0 && (canBeTag(words[begin - 1]) || (begin < all && words[begin - 1].is(kAnd)))) {
            --begin;
            hasTag = hasTag || words[begin].is(kAnyTag);
        }
        while (begin < all && words[begin].is(kAnd)) {
            ++begin;
        }
        const WordSpan tags = WordSpan(words).subspan(begin);
        if (!hasTag || begin == 0) {
            return false;
        }
        if (editionMisinterpretedAsEditor(reading.element(), WordSpan(words).first(begin + 1)) ||
            !isEditor(reading.element(), tags)) {
            while (begin > 1 && isEdition(reading.element(), words[begin - 1].text)) {
                --begin;
            }
            reading.persons.leave(textOf(WordSpan(words).subspan(begin)));
        } else {
            // "Smith, Ed." may be Edward Smith; a tag behind a whole name may not.
            const bool isPlainCapital = !tags.front().isLower() && !hasParenthesis(tags.front().text);
            if (isPlainCapital && begin < 2) {
                return false;
            }
            for (const Word& tag : tags) {
                if (!tag.is(kAnd) && !(tag.is(kTagOrnament) && tags.size() > 1)) {
                    parseAnthologyTag(reading, tag);
                }
            }
        }
        words.resize(begin);
        return true;
    });
}

}  // namespace

void parseAndRemoveAnthology(AuthorReading& reading) {
    AuthorListText& text = reading.list;
    procedure(reading.element(), u"parseAndRemoveAnthology", {{u"text", text.text()}}, [&] {
        if (text.has(kHasTag)) {
            const bool hasTags = processEditor(reading);
            removeInnerTags(reading);
            if (hasTags) {
                return;
            }
        }
        // "Smith, John, anthology" without any tag.
        Words& words = text.words();
        if (words.size() > 1 && words.back().isLower() && words.back().is(kTagOrnament) &&
            parseAnthologyTag(reading, words.back())) {
            words.pop_back();
        }
    });
}

}  // namespace quorvel::authorwords
