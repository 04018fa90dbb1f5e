#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <span>
#include <vector>

#include "core/text.h"
#include "elements/title/word_classes.h"
#include "elements/words/lists.h"

namespace quorvel::words {

/// The apostrophe of a text; the lists have the straight one.
inline constexpr char16_t kApostrophe = u'\u2019';

/// A word of the lists, whatever its letter case; 0 is any word that no list holds.
using EntryId = std::uint32_t;

/// What the lexicon knows of a word.
struct Known {
    EntryId entry = 0;
    /// Its classes in lists of persons, as authorwords::WordClass.
    std::uint32_t inPersons = 0;
    /// Its classes in titles.
    titlewords::WordClasses classes = 0;

    /// Belongs to one of these classes of titles.
    bool is(titlewords::WordClasses any) const { return (classes & any) != 0; }
};

/// A name of several words; or words one of which is a name elsewhere and none here.
struct Phrase {
    static constexpr std::size_t kMostWords = 16;

    /// Its words without the punctuation behind them.
    std::span<const EntryId> words;
    /// Bit k: the word k has a capital.
    std::uint32_t capitals = 0;
    /// A title of a work: no name at the start of a title, which is then the work itself.
    bool isWork = false;
};

/// All lists in one table, which is asked once for each word of a title or of a list of persons.
class Lexicon {
public:
    /// Made at the first use.
    static const Lexicon& instance();

    Lexicon(const Lexicon&) = delete;
    Lexicon& operator=(const Lexicon&) = delete;

    /// @param lowered the word in lower case and with straight apostrophes
    Known find(TextView word, TextView lowered) const;
    /// The classes in lists of persons, where letter case says nothing.
    std::uint32_t inPersons(TextView lowered) const;
    /// The classes in titles of a word that has been found, in another letter case.
    titlewords::WordClasses classesOf(EntryId entry, TextView word) const;
    /// The names of several words that begin with this one, the longest first.
    std::span<const Phrase> phrasesFrom(EntryId first) const;

private:
    /// A word as a list has it. Few words are listed in more than one letter case.
    struct Form {
        TextView word;
        titlewords::WordClasses classes = 0;
        std::uint32_t next = 0;
    };
    struct Entry {
        TextView lowered;
        titlewords::WordClasses anyCase = 0;
        std::uint32_t inPersons = 0;
        std::uint32_t form = 0;
        std::uint32_t firstPhrase = 0;
        std::uint32_t phrases = 0;
    };
    struct Slot {
        std::uint32_t hash = 0;
        EntryId entry = 0;
    };
    struct FoundPhrase;

    Lexicon();
    void add(const WordList& list);
    void add(const PhraseList& list, std::vector<FoundPhrase>& found);
    /// The list in lower case, kept for as long as the lexicon is.
    TextView lowered(TextView list);
    void addForm(Entry& entry, TextView word, titlewords::WordClasses classes);
    void layOut(std::vector<FoundPhrase>& phrases);
    /// The entry of a word in lower case, made when there is none. The word has to stay where it is.
    EntryId entryOf(TextView lowered);
    void grow();
    /// The slot of a word in lower case, or the free one where it belongs.
    std::size_t slotOf(TextView lowered, std::uint32_t hash) const;

    // In lower case what a list has with capitals. The texts do not move.
    std::deque<Text> mLowered;
    // Number 0 of entries and forms is none.
    std::vector<Entry> mEntries = std::vector<Entry>(1);
    std::vector<Form> mForms = std::vector<Form>(1);
    std::vector<EntryId> mPhraseWords;
    std::vector<Phrase> mPhrases;
    // Which hashes, cut short, words have, and which those that mean something in lists of persons. Most of what is
    // looked up is in no list and ends at these small tables, which stay near the processor.
    static constexpr std::size_t kHashes = std::size_t{1} << 17U;
    std::bitset<kHashes> mHashes;
    static constexpr std::size_t kHashesInPersons = std::size_t{1} << 15U;
    std::bitset<kHashesInPersons> mHashesInPersons;
    // Open addressing: a power of two, at least half of it free.
    std::vector<Slot> mSlots = std::vector<Slot>(std::size_t{1} << 15U);
};

}  // namespace quorvel::words
