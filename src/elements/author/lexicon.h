#pragma once

#include <cstdint>

#include "core/text.h"

/// The words that the author's rules know, as one look-up: what a word may be in a list of persons.
namespace quorvel::authorwords {

/// Classes of words, as bit flags: a word may have several ("press" is an institution's word and a
/// surname).
enum WordClass : std::uint32_t {
    kNoClass = 0,
    /// Begins a last name in any letter case when it is not the first word: "van", "De", "St."
    kParticle = 1U << 0,
    /// The same, in lower case only, since the capitalised word is a name of its own: "do", "in", "am".
    kLowerParticle = 1U << 1,
    /// Joins two last names: "Ortega y Gasset", "Costa e Silva".
    kNameConjunction = 1U << 2,
    /// Stands in names of institutions between their parts: "of", "for".
    kPreposition = 1U << 3,
    /// Names a kind of institution and can stand for it: "Agency", "Committee".
    kInstitutionHead = 1U << 4,
    /// Tells an institution without naming its kind: "education", "yorker".
    kInstitutionWord = 1U << 5,
    /// What institutions are concerned with; the word behind their "and": "Prevention".
    kTopic = 1U << 6,
    /// Begins the name of an institution: "National", "American".
    kInstitutionOpening = 1U << 7,
    /// An institution's word that is a usual surname too: "Press", "Hall".
    kAlsoSurname = 1U << 8,
    /// Ends the name of a company: "Inc.", "Ltd."
    kCompanyEnding = 1U << 9,
    /// Begins the name of a part of a larger body: "Bureau", "Dept."
    kSubdivision = 1U << 10,
    /// "Jr.", "Sr.", "III".
    kPostfix = 1U << 11,
    /// An academic degree: it can only follow a complete name.
    kDegree = 1U << 12,
    /// Comes after a last name and belongs to it: "Chaibub Neto".
    kFamilySuffix = 1U << 13,
    /// A last name in the middle of a name: "Sánchez", "Mies" (van der Rohe).
    kPartialLastName = 1U << 14,
    /// A first name, where the order is in doubt.
    kFirstName = 1U << 15,
    /// The word between the last two persons.
    kAnd = 1U << 16,
    kEditorTag = 1U << 17,
    kCompilerTag = 1U << 18,
    kTranslatorTag = 1U << 19,
    /// Belongs to a tag without meaning anything for it: "guest", "anthology".
    kTagOrnament = 1U << 20,
    /// "et" of "et al."
    kEt = 1U << 21,
    kAl = 1U << 22,
    /// Opens text of another element: "vol", "edited".
    kResidueWord = 1U << 23,
    /// Has to do with an edition statement: "2nd", "rev".
    kEditionWord = 1U << 24,
    /// "Ibn", "Abu": begins an Arabic last name, also as the first word.
    kArabicOpening = 1U << 25,
    kEastAsianLastName = 1U << 26,
    /// "discussion" of the discussant phrase.
    kDiscussion = 1U << 27,
    /// A first name or title cut short with a full stop: "Wm."
    kAbbreviation = 1U << 28,
    /// A first name that families bear, too: it tells little of the order.
    kSharedFirstName = 1U << 29,
    /// A particle that is a first name, too: "Ben", "Van".
    kGivenLikeParticle = 1U << 30,
    /// Ends the name of a country or state in front of one of its authorities: "United States. Dept. of Labor".
    kJurisdiction = 1U << 31,
};

inline constexpr std::uint32_t kAnyTag = kEditorTag | kCompilerTag | kTranslatorTag;

/// The classes of a word in lower case, without its closing full stops and with straight
/// apostrophes.
std::uint32_t classesOf(TextView lowerCaseWord);

}  // namespace quorvel::authorwords
