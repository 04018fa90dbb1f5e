#include <algorithm>

#include "core/letter_case.h"
#include "core/procedure.h"
#include "elements/author/author.h"

/// The tags that tell what the persons are: editors, compilers or translators.
namespace quorvel {

using namespace authorwords;

namespace {

struct RoleOfTag {
    std::uint32_t wordClass;
    OutputTemplateAuthor::Role role;
};
constexpr RoleOfTag kRolesOfTags[] = {
    {kEditorTag, OutputTemplateAuthor::kEditor},
    {kCompilerTag, OutputTemplateAuthor::kCompiler},
    {kTranslatorTag, OutputTemplateAuthor::kTranslator},
};

constexpr TextView kSeries = u"series";
// Endings before which a tag takes its plural "s".
constexpr TextView kTagEndings[] = {u".)", u")", u"."};

bool hasParenthesis(TextView text) {
    return text.front() == u'(' || text.back() == u')';
}

/// "ed.", "(Ed.", "Ed." but not "Ed", which is a first name, nor the initials of "Smith ED."
bool canBeTag(const Word& word) {
    const bool isInitials = word.text.size() > 1 && isCapital(word.text[0]) && isCapital(word.text[1]);
    return word.is(kAnyTag | kTagOrnament) && !isInitials &&
           (word.isLower() || word.endsWithStop || hasParenthesis(word.text));
}

/// "(Ed.)" in its parts, so that two roles share the parentheses.
struct TagParts {
    TextView opening;
    TextView word;
    TextView closing;
};

TagParts partsOf(TextView tag) {
    if (tag.size() > 2 && tag.front() == u'(' && tag.back() == u')') {
        return {tag.substr(0, 1), tag.substr(1, tag.size() - 2), tag.substr(tag.size() - 1)};
    }
    return {{}, tag, {}};
}

}  // namespace

Text OutputTemplateAuthor::generateTag(TextView templateStr, bool isPlural) const {
    return procedure(*this, u"generateTag", {{u"template", templateStr}, {u"isPlural", isPlural}}, [&] {
        if (!isPlural || templateStr.empty()) {
            return Text(templateStr);
        }
        TextView ending;
        for (const TextView candidate : kTagEndings) {
            if (endsWith(templateStr, candidate)) {
                ending = candidate;
                break;
            }
        }
        const TextView stem = templateStr.substr(0, templateStr.size() - ending.size());
        return concatenate({stem, endsWith(stem, u"s") ? u"" : u"s", ending});
    });
}

/// The roles that the style tells apart.
std::vector<bool> OutputTemplateAuthor::rolesInForce() const {
    std::vector<bool> roles = mAnthologies;
    roles.resize(kRoles);
    if (!mSupportsCompilerAndEditor && roles[kCompiler]) {
        roles[kCompiler] = false;
        roles[kEditor] = true;
    }
    return roles;
}

Text OutputTemplateAuthor::editor() const {
    return procedure(*this, u"editor[Get]", kNoParameters, [&] {
        Text result;
        if (std::find(mAnthologies.begin(), mAnthologies.end(), true) == mAnthologies.end()) {
            return result;
        }
        const std::vector<bool> roles = rolesInForce();
        const std::vector<Text>& tags = mNumAuthors > 1 || HasEtAl ? mEditorTagsPlural : mEditorTagsSingular;
        TextView closing;
        for (std::size_t role = 0; role < std::min<std::size_t>(kRoles, tags.size()); ++role) {
            if (!roles[role] || tags[role].empty()) {
                continue;
            }
            const TagParts tag = partsOf(tags[role]);
            if (result.empty()) {
                result.append(tag.opening);
            } else {
                // "(Eds. & Trans.)" shares the parentheses and has the style's own word.
                result.append(closing.empty() || trim(mAndSeparator).empty() ? TextView(u" and ")
                                                                             : TextView(mAndSeparator));
            }
            result.append(tag.word);
            closing = tag.closing;
        }
        return result.append(closing);
    });
}

void OutputTemplateAuthor::parseAndRemoveAnthology(ListText& text) {
    procedure(*this, u"parseAndRemoveAnthology", {{u"text", text.text()}}, [&] {
        if (text.has(kHasTag)) {
            const bool hasTags = processEditor(text);
            removeInnerTags(text);
            if (hasTags) {
                return;
            }
        }
        // "Smith, John, anthology" without any tag.
        Words& words = text.words();
        if (words.size() > 1 && words.back().isLower() && words.back().is(kTagOrnament) &&
            parseAnthologyTag(words.back())) {
            words.pop_back();
        }
    });
}

/// "Smith, J. (Ed.), & Jones, K. (Trans.)": a tag behind one of several persons. The element has one set
/// of roles for all.
void OutputTemplateAuthor::removeInnerTags(ListText& text) {
    Words& words = text.words();
    std::size_t kept = 0;
    for (const Word& word : words) {
        const bool isTag = kept > 0 && word.is(kAnyTag) && word.text.front() == u'(' && word.text.back() == u')';
        if (!isTag || !parseAnthologyTag(word)) {
            words[kept++] = word;
        }
    }
    words.resize(kept);
}

bool OutputTemplateAuthor::parseAnthologyTag(const Word& word) {
    return procedure(*this, u"parseAnthologyTag", {{u"word", word.text}}, [&] {
        bool isTag = false;
        for (const RoleOfTag& tag : kRolesOfTags) {
            if (word.is(tag.wordClass)) {
                mAnthologies.at(static_cast<std::size_t>(tag.role)) = true;
                isTag = true;
            }
        }
        if (word.is(kTagOrnament)) {
            mAnthologies.at(kEditor) = true;
            isTag = true;
        }
        return isTag;
    });
}

/// Takes the tags off the end of the list: ", eds.", "(Ed. & Trans.)", ", guest ed.".
bool OutputTemplateAuthor::processEditor(ListText& text) {
    return procedure(*this, u"processEditor", {{u"text", text.text()}}, [&] {
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
        if (editionMisinterpretedAsEditor(WordSpan(words).first(begin + 1)) || !isEditor(tags)) {
            while (begin > 1 && isEdition(words[begin - 1].text)) {
                --begin;
            }
            mResidue = Text(textOf(WordSpan(words).subspan(begin)));
        } else {
            // "Smith, Ed." may be Edward Smith; a tag behind a whole name may not.
            const bool isPlainCapital = !tags.front().isLower() && !hasParenthesis(tags.front().text);
            if (isPlainCapital && begin < 2) {
                return false;
            }
            for (const Word& tag : tags) {
                if (!tag.is(kAnd) && !(tag.is(kTagOrnament) && tags.size() > 1)) {
                    parseAnthologyTag(tag);
                }
            }
        }
        words.resize(begin);
        return true;
    });
}

/// A series editor is none of this work.
bool OutputTemplateAuthor::isEditor(WordSpan words) const {
    return procedure(*this, u"isEditor", {{u"words", authorwords::textOf(words)}}, [&] {
        return std::none_of(words.begin(), words.end(),
                            [](const Word& word) { return startsWith(toLower(word.text), kSeries); });
    });
}

/// "2nd ed.", "rev. ed.": the last word is the "ed" and the one before it says which edition.
bool OutputTemplateAuthor::editionMisinterpretedAsEditor(WordSpan words) const {
    return procedure(*this, u"editionMisinterpretedAsEditor", {{u"words", authorwords::textOf(words)}}, [&] {
        return words.size() > 1 && words.back().is(kEditorTag) && isEdition(words[words.size() - 2].text);
    });
}

bool OutputTemplateAuthor::isEdition(TextView word) const {
    return procedure(*this, u"isEdition", {{u"word", word}}, [&] {
        const Word edition = wordOf(word);
        return edition.is(kEditionWord) &&
               (edition.isLower() || edition.shape == Shape::Number || edition.endsWithStop);
    });
}

}  // namespace quorvel
