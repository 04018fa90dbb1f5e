#pragma once

#include "core/text.h"

/// The words that keep their capital in a title in sentence case, as tables: title_places.cpp holds
/// places, peoples and languages, title_persons.cpp persons, periods, works and makes.
namespace quorvel::titlenames {

/// A list of words with blanks, or of phrases with "|" between them.
struct WordList {
    TextView words;
};

/// Countries, regions, cities, peoples, languages, religions: a direction, or a word such as "River",
/// beside one of them belongs to its name.
extern const WordList kPlaces[];
extern const std::size_t kPlacesCount;
/// More of them, by continent (title_regions.cpp).
extern const WordList kRegions[];
extern const std::size_t kRegionsCount;
/// Last names, eponyms, gods, periods, makes and other names of one word.
extern const WordList kNames[];
extern const std::size_t kNamesCount;
/// Given names: the word behind one is a last name.
extern const WordList kGivenNames[];
extern const std::size_t kGivenNamesCount;
extern const WordList kMoreGivenNames[];
extern const std::size_t kMoreGivenNamesCount;
/// More names of one word: eponyms, genera, authors (title_eponyms.cpp).
extern const WordList kEponyms[];
extern const std::size_t kEponymsCount;
/// Last names that are no other words (title_last_names.cpp).
extern const WordList kLastNames[];
extern const std::size_t kLastNamesCount;
/// Towns, regions, inhabitants, languages (title_towns.cpp).
extern const WordList kTowns[];
extern const std::size_t kTownsCount;
/// Myth, scripture, history, stars, makes (title_lore.cpp).
extern const WordList kLore[];
extern const std::size_t kLoreCount;
/// Genera and larger groups of living beings (title_genera.cpp).
extern const WordList kGenera[];
extern const std::size_t kGeneraCount;
/// Names of several words, as they are written.
extern const WordList kPhrases[];
extern const std::size_t kPhrasesCount;
/// More of them: organisations, laws, tests, events (title_phrases.cpp).
extern const WordList kCommonWordNames[];
extern const std::size_t kCommonWordNamesCount;
/// Words, some of them names elsewhere, that are none beside each other: "guinea pig" (title_phrases.cpp).
extern const WordList kNoNames[];
extern const std::size_t kNoNamesCount;
/// Works that titles of other works speak of (title_works.cpp); no names at the start of a title, where the
/// work itself is meant.
extern const WordList kWorks[];
extern const std::size_t kWorksCount;

}  // namespace quorvel::titlenames
