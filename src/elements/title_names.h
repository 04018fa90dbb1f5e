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
/// Last names, eponyms, gods, periods, makes and other names of one word.
extern const WordList kNames[];
extern const std::size_t kNamesCount;
/// Given names: the word behind one is a last name.
extern const WordList kGivenNames[];
extern const std::size_t kGivenNamesCount;
/// Names of several words, as they are written.
extern const WordList kPhrases[];
extern const std::size_t kPhrasesCount;

}  // namespace quorvel::titlenames
