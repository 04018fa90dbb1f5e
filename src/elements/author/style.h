#pragma once

#include <cstdint>
#include <memory>
#include <tuple>
#include <vector>

#include "core/instrumented.h"
#include "core/options.h"
#include "core/text.h"

/// What a style asks of lists of persons.
namespace quorvel {

/// The settings of a style, under the names of `Reset`'s arguments.
struct AuthorOptions {
    /// "[name?]" and "name [pseud.]" are written.
    bool SupportAnonAndPseudoAuthors = false;
    /// A bracketed part of a name that is read belongs to the first names.
    bool SquareBracketIsForFirstName = false;
    /// The tags of one editor, compiler and translator, separated by commas.
    Text editorTags;
    /// The word before the last person; empty when the style has none.
    Text andSeparator;
    /// Two persons have no comma before that word.
    bool twoAuthorsIsOnlyCaseHaveNoComma = false;
    /// The first person is reversed in notes too.
    bool ReverseFirstOnFootnote = false;
    /// The persons after the first are reversed.
    bool reverseSecondaryAuthors = false;
    /// A comma stands between the last and the first names.
    bool reversedAuthorUsesComma = false;
    /// A comma stands before a postfix.
    bool reversedAuthorPostfixUsesComma = false;
    /// The number of persons from which a list, a citation and a minimal form are shortened.
    std::int16_t numAuthorsToTriggerEtAl = 0;
    std::int16_t numAuthorsToTriggerEtAlCitation = 0;
    std::int16_t numAuthorsToTriggerEtAlMinimalString = 0;
    /// How many persons a shortened list and the two other forms keep; below 1 all.
    std::int16_t numAuthorsInEtAl = 0;
    std::int16_t numAuthorsInEtAlMinimalString = 0;
    /// An omission is written " . . . " before the last person.
    bool etAlUsesElipses = false;
    /// The reference list is shortened, not only notes.
    bool etAlInReferenceList = false;
    /// A comma stands before "et al." in the reference list and in notes.
    bool etAlHasComma = false;
    bool etAlCitationHasComma = false;
    /// The text between the persons and their tag.
    Text editorSeparator;
    /// First names are written as initials.
    bool initialsOnly = false;
    /// Initials, "Jr." and "Sr." have full stops.
    bool initialsUsePeriods = false;
    /// Group authors are set off by semicolons.
    bool semicolonBetweenGroupAuthors = false;
    /// Compilers have a tag of their own.
    bool supportsCompilerAndEditor = false;

    bool operator==(const AuthorOptions&) const = default;
};

/// In the order of `Reset`'s arguments.
inline constexpr std::tuple kAuthorOptions{
    Option{u"SupportAnonAndPseudoAuthors", &AuthorOptions::SupportAnonAndPseudoAuthors},
    Option{u"SquareBracketIsForFirstName", &AuthorOptions::SquareBracketIsForFirstName},
    Option{u"editorTags", &AuthorOptions::editorTags},
    Option{u"andSeparator", &AuthorOptions::andSeparator},
    Option{u"twoAuthorsIsOnlyCaseHaveNoComma", &AuthorOptions::twoAuthorsIsOnlyCaseHaveNoComma},
    Option{u"ReverseFirstOnFootnote", &AuthorOptions::ReverseFirstOnFootnote},
    Option{u"reverseSecondaryAuthors", &AuthorOptions::reverseSecondaryAuthors},
    Option{u"reversedAuthorUsesComma", &AuthorOptions::reversedAuthorUsesComma},
    Option{u"reversedAuthorPostfixUsesComma", &AuthorOptions::reversedAuthorPostfixUsesComma},
    Option{u"numAuthorsToTriggerEtAl", &AuthorOptions::numAuthorsToTriggerEtAl},
    Option{u"numAuthorsToTriggerEtAlCitation", &AuthorOptions::numAuthorsToTriggerEtAlCitation},
    Option{u"numAuthorsToTriggerEtAlMinimalString", &AuthorOptions::numAuthorsToTriggerEtAlMinimalString},
    Option{u"numAuthorsInEtAl", &AuthorOptions::numAuthorsInEtAl},
    Option{u"numAuthorsInEtAlMinimalString", &AuthorOptions::numAuthorsInEtAlMinimalString},
    Option{u"etAlUsesElipses", &AuthorOptions::etAlUsesElipses},
    Option{u"etAlInReferenceList", &AuthorOptions::etAlInReferenceList},
    Option{u"etAlHasComma", &AuthorOptions::etAlHasComma},
    Option{u"etAlCitationHasComma", &AuthorOptions::etAlCitationHasComma},
    Option{u"editorSeparator", &AuthorOptions::editorSeparator},
    Option{u"initialsOnly", &AuthorOptions::initialsOnly},
    Option{u"initialsUsePeriods", &AuthorOptions::initialsUsePeriods},
    Option{u"semicolonBetweenGroupAuthors", &AuthorOptions::semicolonBetweenGroupAuthors},
    Option{u"supportsCompilerAndEditor", &AuthorOptions::supportsCompilerAndEditor},
};

inline constexpr TextView kUsualEtAl = u"et al.";

/// What the settings of `Reset` cannot say: properties of the element, which stay when these change.
struct AuthorWording {
    /// A comma stands before the and-word where there are three persons and more. A style without and-word has it
    /// in any case.
    bool andSeparatorHasComma = true;
    /// What stands for the persons that are left out.
    Text etAlText = Text(kUsualEtAl);

    bool operator==(const AuthorWording&) const = default;
};

/// The settings, and the texts that are made of them once.
struct AuthorStyle {
    AuthorOptions options;
    AuthorWording wording;
    /// By role, for one person and for several.
    std::vector<Text> editorTagsSingular;
    std::vector<Text> editorTagsPlural;
    /// The and-word with its blanks; a blank without one.
    Text andSeparator = u" ";
    /// The same behind a comma, and as it stands between two persons of a reference list.
    Text commaForm = u", ";
    Text twoPersonForm = u", ";
    TextView etAlSeparator = u" ";
    TextView etAlCitationSeparator = u" ";

    AuthorStyle() = default;
    /// @param element reports how its tags are made
    AuthorStyle(const Instrumented& element, const AuthorOptions& settings);

    void use(const AuthorWording& words);
    /// Whether the same texts stand between the persons.
    bool hasSeparatorsOf(const AuthorStyle& other) const;
};

/// Shared, since a host may set another style in the middle of an output.
using AuthorStyleRef = std::shared_ptr<const AuthorStyle>;

/// The tag of one or of several persons: "ed." and "eds.", "(Ed.)" and "(Eds.)".
Text generateTag(const Instrumented& element, TextView templateStr, bool isPlural);

}  // namespace quorvel
