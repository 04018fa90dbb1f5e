#include "elements/words/lists.h"

namespace quorvel::words {

namespace {

// clang-format off
constexpr WordList kWordLists[] = {
    // Capitalisation of titles. In lower case and known in any letter case.
    {titlewords::kSmallWord, 0,
#include "elements/words/small_words.inc"
    },
    {titlewords::kFunctionWord, 0,
#include "elements/words/function_words.inc"
    },
    {titlewords::kParticle, 0,
#include "elements/words/lowercase_particles.inc"
    },
    {titlewords::kForeignParticle, 0,
#include "elements/words/foreign_particles.inc"
    },
    {titlewords::kStaysInHeading, 0,
#include "elements/words/words_kept_in_headings.inc"
    },
    {titlewords::kSpeciesEpithet, 0,
#include "elements/words/species_epithets.inc"
    },
    {titlewords::kAbbreviation, 0,
#include "elements/words/abbreviations.inc"
    },
    {titlewords::kLetterTaker, 0,
#include "elements/words/letter_takers.inc"
    },
    {titlewords::kCommonInVowel, 0,
#include "elements/words/common_words_in_vowel.inc"
    },
    {titlewords::kCommonInNameSuffix, 0,
#include "elements/words/common_words_in_name_suffix.inc"
    },
    {titlewords::kCommonInSurnameEnding, 0,
#include "elements/words/common_words_in_last_name_ending.inc"
    },
    {titlewords::kCommonPossessor, 0,
#include "elements/words/common_possessors.inc"
    },
    {titlewords::kCommonPlural, 0,
#include "elements/words/common_plurals.inc"
    },
    {titlewords::kPrefix, 0,
#include "elements/words/prefixes.inc"
    },
    {titlewords::kCompoundTail, 0,
#include "elements/words/compound_tails.inc"
    },
    {titlewords::kInsideShortTitle, 0,
#include "elements/words/words_inside_short_titles.inc"
    },
    {titlewords::kHeadlineVerb, 0,
#include "elements/words/headline_verbs.inc"
    },
    {titlewords::kAdjective, 0,
#include "elements/words/adjectives.inc"
    },
    {titlewords::kLoanWord, 0,
#include "elements/words/loan_words.inc"
    },
    // Languages of titles, likewise.
    {titlewords::kEnglishWord, 0,
#include "elements/words/english_words.inc"
    },
    {titlewords::kEnglishElsewhere, 0,
#include "elements/words/english_words_elsewhere.inc"
    },
    {titlewords::kForeignWord, 0,
#include "elements/words/foreign_words.inc"
    },
    {titlewords::kLanguageParticle, 0,
#include "elements/words/language_particles.inc"
    },
    {titlewords::kFirstArticle, 0,
#include "elements/words/first_articles.inc"
    },
    {titlewords::kAfterArticleInEnglish, 0,
#include "elements/words/english_after_article.inc"
    },
    {titlewords::kOldWord, 0,
#include "elements/words/old_words.inc"
    },
    // Names in titles, and what makes names of words. Known as they are written.
    {titlewords::kPlace, 0,
#include "elements/words/places.inc"
    },
    {titlewords::kName, 0,
#include "elements/words/names.inc"
    },
    {titlewords::kGivenName, authorwords::kFirstName,
#include "elements/words/given_names.inc"
    },
    // Families bear them, too, or particles look like them: in a list of persons they tell little of the order.
    {titlewords::kGivenName, authorwords::kSharedFirstName,
#include "elements/words/given_names_in_last_names.inc"
    },
    {0, authorwords::kSharedFirstName,
#include "elements/words/given_names_that_are_last_names.inc"
    },
    // In titles they mostly mean something else.
    {0, authorwords::kFirstName,
#include "elements/words/given_names_in_lists_of_persons.inc"
    },
    {titlewords::kAmbiguousGivenName, 0,
#include "elements/words/given_names_that_are_words.inc"
    },
    {titlewords::kAmbiguousName, 0,
#include "elements/words/last_names_that_are_words.inc"
    },
    {titlewords::kAmbiguousMonth, 0,
#include "elements/words/months_that_are_words.inc"
    },
    {titlewords::kNameLead, 0,
#include "elements/words/name_leads.inc"
    },
    {titlewords::kTitleOfPerson, 0,
#include "elements/words/titles_of_persons.inc"
    },
    {titlewords::kNameTail, 0,
#include "elements/words/name_tails.inc"
    },
    {titlewords::kInstitutionTail, 0,
#include "elements/words/institution_tails.inc"
    },
    {titlewords::kTailAtEnd, 0,
#include "elements/words/name_tails_at_end.inc"
    },
    {titlewords::kTailBehindArticle, 0,
#include "elements/words/name_tails_behind_article.inc"
    },
    {titlewords::kAcronymTail, 0,
#include "elements/words/name_tails_before_acronym.inc"
    },
    {titlewords::kInstrumentTail, 0,
#include "elements/words/instrument_tails.inc"
    },
    {titlewords::kOfLead, 0,
#include "elements/words/leads_with_of.inc"
    },
    {titlewords::kOfLeadBehindArticle, 0,
#include "elements/words/leads_with_of_behind_article.inc"
    },
    {titlewords::kDirection, 0,
#include "elements/words/directions.inc"
    },
    {titlewords::kCompassPoint, 0,
#include "elements/words/compass_points.inc"
    },
    {titlewords::kOrganizationLead, 0,
#include "elements/words/organization_leads.inc"
    },
    {titlewords::kOrganizationTail, 0,
#include "elements/words/organization_tails.inc"
    },
    {titlewords::kPartner, 0,
#include "elements/words/partners.inc"
    },
    {titlewords::kShipPrefix, 0,
#include "elements/words/ship_prefixes.inc"
    },
    // Lists of persons: last names.
    {0, authorwords::kParticle,
#include "elements/words/particles.inc"
    },
    {0, authorwords::kGivenLikeParticle,
#include "elements/words/given_names_like_particles.inc"
    },
    {0, authorwords::kLowerParticle,
#include "elements/words/particles_in_lower_case_only.inc"
    },
    {0, authorwords::kNameConjunction,
#include "elements/words/name_conjunctions.inc"
    },
    {0, authorwords::kArabicOpening | authorwords::kParticle,
#include "elements/words/arabic_openings.inc"
    },
    {0, authorwords::kFamilySuffix,
#include "elements/words/family_suffixes.inc"
    },
    {0, authorwords::kPartialLastName,
#include "elements/words/first_of_two_last_names.inc"
    },
    {0, authorwords::kEastAsianLastName,
#include "elements/words/east_asian_last_names.inc"
    },
    {0, authorwords::kPostfix,
#include "elements/words/postfixes.inc"
    },
    {0, authorwords::kDegree,
#include "elements/words/degrees.inc"
    },
    {0, authorwords::kAbbreviation,
#include "elements/words/abbreviated_names.inc"
    },
    // Lists of persons: institutions.
    {0, authorwords::kPreposition,
#include "elements/words/prepositions_of_institutions.inc"
    },
    {0, authorwords::kInstitutionHead,
#include "elements/words/institution_heads.inc"
    },
    {0, authorwords::kInstitutionWord,
#include "elements/words/institution_words.inc"
    },
    {0, authorwords::kAlsoSurname,
#include "elements/words/institution_words_that_are_last_names.inc"
    },
    {0, authorwords::kTopic,
#include "elements/words/topics.inc"
    },
    {0, authorwords::kInstitutionOpening,
#include "elements/words/institution_openings.inc"
    },
    {0, authorwords::kCompanyEnding,
#include "elements/words/company_endings.inc"
    },
    {0, authorwords::kJurisdiction,
#include "elements/words/jurisdictions.inc"
    },
    {0, authorwords::kSubdivision,
#include "elements/words/subdivisions.inc"
    },
    // Lists of persons: the words of the list itself and of what stands beside it.
    {0, authorwords::kAnd,
#include "elements/words/and_words.inc"
    },
    {0, authorwords::kEditorTag,
#include "elements/words/editor_tags.inc"
    },
    {0, authorwords::kCompilerTag,
#include "elements/words/compiler_tags.inc"
    },
    {0, authorwords::kTranslatorTag,
#include "elements/words/translator_tags.inc"
    },
    {0, authorwords::kTagOrnament,
#include "elements/words/tag_ornaments.inc"
    },
    {0, authorwords::kEt,
#include "elements/words/et_of_et_al.inc"
    },
    {0, authorwords::kAl,
#include "elements/words/al_of_et_al.inc"
    },
    {0, authorwords::kResidueWord,
#include "elements/words/residue_words.inc"
    },
    {0, authorwords::kEditionWord,
#include "elements/words/edition_words.inc"
    },
    {0, authorwords::kDiscussion,
#include "elements/words/discussion_words.inc"
    },
};

constexpr PhraseList kPhraseLists[] = {
    {false,
#include "elements/words/phrases.inc"
    },
    {false,
#include "elements/words/no_names.inc"
    },
    {true,
#include "elements/words/works.inc"
    },
};
// clang-format on

}  // namespace

std::span<const WordList> wordLists() {
    return kWordLists;
}

std::span<const PhraseList> phraseLists() {
    return kPhraseLists;
}

}  // namespace quorvel::words
