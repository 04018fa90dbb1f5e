#pragma once

#include <cstdint>
#include <span>

#include "core/text.h"
#include "elements/author/lexicon.h"
#include "elements/title/word_classes.h"

/// The lists of words and names, one file a class in this folder: a word or a name of several words in each line,
/// sorted by character code, and none twice. A word may stand in several files.
namespace quorvel::words {

struct WordList {
    /// What its words are in titles; 0 when titles do not ask for them.
    titlewords::WordClasses inTitles;
    /// What they are in lists of persons, as authorwords::WordClass.
    std::uint32_t inPersons;
    /// Each with a line break behind it.
    TextView words;
};

/// Names of several words; or words of which one is a name elsewhere and none here, which is told by their small
/// letters.
struct PhraseList {
    /// Works that titles of other works speak of.
    bool areWorks;
    TextView phrases;
};

std::span<const WordList> wordLists();
std::span<const PhraseList> phraseLists();

}  // namespace quorvel::words
