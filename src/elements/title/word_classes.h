#pragma once

#include <cstdint>

/// What words of titles can be. The lists that say so are elements/words; its lexicon answers for a word with all its
/// classes at once.
namespace quorvel::titlewords {

/// Each class is one bit.
enum WordClass : std::uint64_t {
    // Bits 0 to 31: words that are known in any letter case. Their lists are in lower case.

    /// The short articles, conjunctions and prepositions that a heading keeps in lower case (MLA 7 3.6.1,
    /// Turabian 7 22.3.1). "a" is among them.
    kSmallWord = 1ULL << 0U,
    /// Other articles, conjunctions and prepositions, pronouns and auxiliaries.
    kFunctionWord = 1ULL << 1U,
    /// Name particles: "de", "van".
    kParticle = 1ULL << 2U,
    /// Short words beside particles that stay as they stand: "la" in "de la Cruz", "al" in "et al.".
    kForeignParticle = 1ULL << 3U,
    /// Other short words that a heading leaves as they stand: "vs".
    kStaysInHeading = 1ULL << 4U,
    /// Second words of species: "coli", "melanogaster".
    kSpeciesEpithet = 1ULL << 5U,
    /// Abbreviations behind whose full stop the sentence goes on: "vs", "Mr", "St".
    kAbbreviation = 1ULL << 6U,
    /// What carries a letter as a grade or kind, so that "A" behind it is no article: "vitamin".
    kLetterTaker = 1ULL << 7U,
    /// Common words in -o, -i and -u, which most words with such an ending are not.
    kCommonInVowel = 1ULL << 8U,
    /// Common words in -ian, -ean and -ese.
    kCommonInNameSuffix = 1ULL << 9U,
    /// Common words with the ending of a last name: "person", "season".
    kCommonInSurnameEnding = 1ULL << 10U,
    /// Common nouns that stand in the possessive: "children's", "world's".
    kCommonPossessor = 1ULL << 11U,
    /// English words with accents: "café".
    kLoanWord = 1ULL << 12U,
    /// Frequent short words of English.
    kEnglishWord = 1ULL << 13U,
    /// Short words of other languages that English titles do not hold.
    kForeignWord = 1ULL << 14U,
    /// Of these, the ones that stand in names inside English titles, too: one of them shows nothing.
    kLanguageParticle = 1ULL << 15U,
    /// Articles that begin a foreign title, and what follows them in English names of places: "Las Vegas".
    kFirstArticle = 1ULL << 16U,
    kAfterArticleInEnglish = 1ULL << 17U,
    /// Old spellings: "worlde".
    kOldWord = 1ULL << 18U,
    /// Plurals that are common words while the singular is a name: "gods".
    kCommonPlural = 1ULL << 19U,
    /// First parts of hyphenated words that are no names: "non", "semi".
    kPrefix = 1ULL << 20U,
    /// Last parts of hyphenated words that are no names behind one: "type" in "Wigner-type".
    kCompoundTail = 1ULL << 21U,
    /// Small words of English, French, Spanish, Italian and German, in which a shortened title does not end.
    kInsideShortTitle = 1ULL << 22U,
    /// Short words of English that other languages have, too: "in", "for". Among words of another language they show
    /// nothing.
    kEnglishElsewhere = 1ULL << 23U,
    /// Verbs of headlines in the forms in which they stand behind their subject: "affects", "keep".
    kHeadlineVerb = 1ULL << 24U,
    /// Adjectives that no ending tells: "new", "early".
    kAdjective = 1ULL << 25U,

    // Bits 32 and up: words that are known only as they are written.

    /// Words that make a name of any word behind them: "Saint", "Mount", "Sir".
    kNameLead = 1ULL << 32U,
    /// Words that are part of a name when a known name follows: "President", "Lake".
    kTitleOfPerson = 1ULL << 33U,
    /// Last parts of names of places and events: "River" in "Hudson River".
    kNameTail = 1ULL << 34U,
    /// Last parts of names behind a noun, not behind an adjective: "Columbia University", but "Chinese
    /// university students".
    kInstitutionTail = 1ULL << 35U,
    /// First parts of names with "of": "Battle of Hastings".
    kOfLead = 1ULL << 36U,
    /// "North", "Eastern", "Central".
    kDirection = 1ULL << 37U,
    /// Directions that are regions behind "the": "the West".
    kCompassPoint = 1ULL << 38U,
    /// First and last words of the names of organisations: "American Heart Association".
    kOrganizationLead = 1ULL << 39U,
    kOrganizationTail = 1ULL << 40U,
    /// Last words of names of two words and more behind "the": "the Clean Air Act".
    kTailBehindArticle = 1ULL << 41U,
    /// Last words of the names of tests and scales behind a person's name: "Beck Depression Inventory".
    kInstrumentTail = 1ULL << 42U,
    /// What stands before the names of ships, without its last full stop.
    kShipPrefix = 1ULL << 43U,
    /// Months that are words, too.
    kAmbiguousMonth = 1ULL << 44U,
    /// Countries, regions, towns, peoples, languages, religions: a direction, or a word such as "River", beside one of
    /// them belongs to its name.
    kPlace = 1ULL << 45U,
    /// Other names of one word: last names, eponyms, genera, gods, periods, makes.
    kName = 1ULL << 46U,
    /// The word behind one is a last name.
    kGivenName = 1ULL << 47U,
    /// Given names that are words, too, and names only before another name: "Mark", "Grace".
    kAmbiguousGivenName = 1ULL << 48U,
    /// Last names that are words, too, and names beside another with a hyphen between: "Box" in "Box-Cox".
    kAmbiguousName = 1ULL << 49U,
    /// What stands behind "and" in names of firms: "Shakespeare and Company".
    kPartner = 1ULL << 50U,
    /// Last words of names that an acronym in parentheses stands behind: "Acculturative Stress Inventory (ASI)".
    kAcronymTail = 1ULL << 51U,
    /// First words of names with "of" behind "the": "the Journal of Money, Credit and Banking".
    kOfLeadBehindArticle = 1ULL << 52U,
    /// Last parts of names that have no noun behind them: "Lisbon Declaration", but "Lisbon project funding".
    kTailAtEnd = 1ULL << 53U,
};

/// A set of classes.
using WordClasses = std::uint64_t;

/// Words that say nothing about the capitalisation that a title stands in.
inline constexpr WordClasses kAnyFunctionWord = kSmallWord | kFunctionWord;
inline constexpr WordClasses kAnyName = kPlace | kName | kGivenName;
/// The classes of words that are known only as they are written.
inline constexpr WordClasses kKnownAsWritten = ~WordClasses{0} << 32U;

}  // namespace quorvel::titlewords
