#pragma once

#include <array>

#include "core/text.h"
#include "elements/author/author.h"

/// The author settings that a host passes for its four styles, each with the section of the manual from
/// which it comes.
namespace quorvel::test {

struct AuthorPreset {
    TextView name;
    AuthorOptions options;
};

/// MLA Handbook, 7th ed., 5.5.2-5.5.4: the first person reversed, from four persons on the first and
/// "et al."
inline AuthorOptions mlaAuthorOptions() {
    AuthorOptions options;
    options.SquareBracketIsForFirstName = true;
    options.editorTags = u"ed.,comp.,trans.";
    options.andSeparator = u"and";
    options.reversedAuthorUsesComma = true;
    options.reversedAuthorPostfixUsesComma = true;
    options.numAuthorsToTriggerEtAl = 4;
    options.numAuthorsToTriggerEtAlCitation = 4;
    options.numAuthorsToTriggerEtAlMinimalString = 4;
    options.numAuthorsInEtAl = 1;
    options.numAuthorsInEtAlMinimalString = 1;
    options.etAlInReferenceList = true;
    options.etAlHasComma = true;
    options.editorSeparator = u", ";
    options.initialsUsePeriods = true;
    options.supportsCompilerAndEditor = true;
    return options;
}

/// Publication Manual of the APA, 6th ed., 6.12 (citations), 6.27: all persons reversed with initials, from
/// eight persons on six, an ellipsis and the last.
inline AuthorOptions apaAuthorOptions() {
    AuthorOptions options;
    options.SquareBracketIsForFirstName = true;
    options.editorTags = u"(Ed.),(Comp.),(Trans.)";
    options.andSeparator = u"&";
    options.ReverseFirstOnFootnote = true;
    options.reverseSecondaryAuthors = true;
    options.reversedAuthorUsesComma = true;
    options.reversedAuthorPostfixUsesComma = true;
    options.numAuthorsToTriggerEtAl = 8;
    options.numAuthorsToTriggerEtAlCitation = 6;
    options.numAuthorsToTriggerEtAlMinimalString = 3;
    options.numAuthorsInEtAl = 6;
    options.numAuthorsInEtAlMinimalString = 1;
    options.etAlUsesElipses = true;
    options.etAlInReferenceList = true;
    options.etAlHasComma = true;
    options.editorSeparator = u" ";
    options.initialsOnly = true;
    options.initialsUsePeriods = true;
    return options;
}

/// Turabian, 7th ed., 16.1.3, 17.1.1: all persons in the bibliography, in notes from four on the first and
/// "et al."; anonymous and pseudonymous authors are marked.
inline AuthorOptions turabianAuthorOptions() {
    AuthorOptions options;
    options.SupportAnonAndPseudoAuthors = true;
    options.editorTags = u"ed.,comp.,trans.";
    options.andSeparator = u"and";
    options.reversedAuthorUsesComma = true;
    options.numAuthorsToTriggerEtAl = 4;
    options.numAuthorsToTriggerEtAlCitation = 4;
    options.numAuthorsToTriggerEtAlMinimalString = 4;
    options.numAuthorsInEtAl = 1;
    options.numAuthorsInEtAlMinimalString = 1;
    options.etAlHasComma = true;
    options.editorSeparator = u", ";
    options.initialsUsePeriods = true;
    options.supportsCompilerAndEditor = true;
    return options;
}

/// AMA Manual of Style, 10th ed., 3.7: all persons reversed without commas and stops, more than six cut
/// to three; group authors behind a semicolon.
inline AuthorOptions amaAuthorOptions() {
    AuthorOptions options;
    options.editorTags = u"ed,comp,trans";
    options.ReverseFirstOnFootnote = true;
    options.reverseSecondaryAuthors = true;
    options.numAuthorsToTriggerEtAl = 7;
    options.numAuthorsToTriggerEtAlCitation = 3;
    options.numAuthorsToTriggerEtAlMinimalString = 3;
    options.numAuthorsInEtAl = 3;
    options.numAuthorsInEtAlMinimalString = 1;
    options.etAlInReferenceList = true;
    options.etAlHasComma = true;
    options.editorSeparator = u", ";
    options.initialsOnly = true;
    options.semicolonBetweenGroupAuthors = true;
    return options;
}

inline std::array<AuthorPreset, 4> authorPresets() {
    return {{{u"MLA", mlaAuthorOptions()},
             {u"APA", apaAuthorOptions()},
             {u"Turabian", turabianAuthorOptions()},
             {u"AMA", amaAuthorOptions()}}};
}

}  // namespace quorvel::test
