#pragma once

#include <span>

#include "core/text.h"

/// The word lists of capitalisation that are no names, and look-ups in the lists of names.
namespace quorvel::titlewords {

/// Whether a word in lower case is one of the short articles, conjunctions and prepositions that a
/// heading keeps in lower case (MLA 7 3.6.1, Turabian 7 22.3.1). "a" is among them.
bool isSmallWord(TextView word);
/// Articles, conjunctions and prepositions of any length, pronouns and auxiliaries: words that say
/// nothing about the capitalisation that a title stands in.
bool isFunctionWord(TextView word);
/// Name particles: "de", "van".
bool isParticle(TextView word);
/// Short words beside particles that stay as they stand: "la" in "de la Cruz", "al" in "et al.".
bool isForeignParticle(TextView word);
/// Second words of species: "coli", "melanogaster".
bool isSpeciesEpithet(TextView word);
/// Abbreviations behind whose full stop the sentence goes on: "vs", "Mr", "St".
bool isAbbreviation(TextView word);
/// Words that make a name of any word behind them: "Saint", "Mount", "Sir".
bool isNameLead(TextView word);
/// Last parts of names of places, events and institutions: "River" in "Hudson River".
bool isNameTail(TextView word);
/// Words that are part of a name when a known name follows: "President", "Lake".
bool isTitleOfPerson(TextView word);
/// Last parts of names behind a noun, not behind an adjective: "Columbia University", but "Chinese university
/// students".
bool isInstitutionTail(TextView word);
/// First parts of names with "of": "Battle of Hastings".
bool isOfLead(TextView word);
/// First and last words of the names of organisations: "American Heart Association".
bool isOrganizationLead(TextView word);
bool isOrganizationTail(TextView word);
/// Last words of names of two words and more behind "the": "the Clean Air Act".
bool isTailBehindArticle(TextView word);
/// Last words of the names of tests and scales behind a person's name: "Beck Depression Inventory".
bool isInstrumentTail(TextView word);
/// Common words in -o, -i and -u, which most words with such an ending are not.
bool isCommonInVowel(TextView word);
/// "North", "Eastern", "Central".
bool isDirection(TextView word);
/// What carries a letter as a grade or kind, so that "A" behind it is no article: "vitamin".
bool takesLetter(TextView word);
/// Common words in -ian, -ean and -ese.
bool isCommonInNameSuffix(TextView word);
/// Common nouns that stand in the possessive: "children's", "world's".
bool isCommonPossessor(TextView word);

/// Names; the word without its possessive, as it is written.
bool isPlace(TextView word);
bool isName(TextView word);
bool isGivenName(TextView word);
/// A name of several words.
struct Phrase {
    TextView text;
    std::size_t words = 0;
    /// A title of a work: no name at the start of a title, which is then the work itself.
    bool isWork = false;
};
/// The known names of several words that begin with this one in lower case, the longest first.
std::span<const Phrase> phrasesFrom(TextView firstWord);

}  // namespace quorvel::titlewords
