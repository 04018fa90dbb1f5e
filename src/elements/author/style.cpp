#include "elements/author/style.h"

#include <cstddef>

#include "core/procedure.h"
#include "elements/author/persons.h"

namespace quorvel {

namespace {

constexpr TextView kComma = u",";
// Endings before which a tag takes its plural "s".
constexpr TextView kTagEndings[] = {u".)", u")", u"."};

/// The and-word with its blanks.
Text padded(TextView andSeparator) {
    if (andSeparator.empty()) {
        return u" ";
    }
    return contains(andSeparator, u" ") ? Text(andSeparator) : concatenate({u" ", andSeparator, u" "});
}

TextView separatorBeforeEtAl(bool hasComma) {
    return hasComma ? u", " : u" ";
}

}  // namespace

AuthorStyle::AuthorStyle(const Instrumented& element, const AuthorOptions& settings)
    : options(settings),
      editorTagsSingular(split(settings.editorTags, kComma)),
      andSeparator(padded(settings.andSeparator)),
      commaForm(concatenate({kComma, andSeparator})),
      twoPersonForm(settings.twoAuthorsIsOnlyCaseHaveNoComma ? andSeparator : commaForm),
      etAlSeparator(separatorBeforeEtAl(settings.etAlHasComma)),
      etAlCitationSeparator(separatorBeforeEtAl(settings.etAlCitationHasComma)) {
    for (std::size_t role = 0; role < editorTagsSingular.size(); ++role) {
        const Text& tag = editorTagsSingular[role];
        editorTagsPlural.push_back(role == AuthorPersons::kTranslator ? tag : generateTag(element, tag, true));
    }
}

void AuthorStyle::use(const AuthorWording& words) {
    wording = words;
    const bool hasComma = words.andSeparatorHasComma || trim(andSeparator).empty();
    commaForm = hasComma ? concatenate({kComma, andSeparator}) : andSeparator;
}

bool AuthorStyle::hasSeparatorsOf(const AuthorStyle& other) const {
    return andSeparator == other.andSeparator && commaForm == other.commaForm && twoPersonForm == other.twoPersonForm &&
           etAlSeparator == other.etAlSeparator && etAlCitationSeparator == other.etAlCitationSeparator &&
           options.editorSeparator == other.options.editorSeparator;
}

Text generateTag(const Instrumented& element, TextView templateStr, bool isPlural) {
    return procedure(element, u"generateTag", {{u"template", templateStr}, {u"isPlural", isPlural}}, [&] {
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

}  // namespace quorvel
