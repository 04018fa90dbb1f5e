#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <span>
#include <vector>

#include "core/text.h"
#include "elements/title/names.h"
#include "elements/title/words.h"

namespace quorvel::titlewords {

/// The apostrophe of a title; the lists have the straight one.
inline constexpr char16_t kApostrophe = u'\u2019';

/// A word of the lists, whatever its letter case; 0 is any word that no list holds.
using EntryId = std::uint32_t;

/// What the lexicon knows of a word.
struct Known {
    EntryId entry = 0;
    WordClasses classes = 0;

    /// Belongs to one of these classes.
    bool is(WordClasses any) const { return (classes & any) != 0; }
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

/// All word lists and names in one table, which is asked once for each word of a title.
class Lexicon {
public:
    /// Made at the first use.
    static const Lexicon& instance();

    Lexicon(const Lexicon&) = delete;
    Lexicon& operator=(const Lexicon&) = delete;

    /// @param lowered the word in lower case and with straight apostrophes
    Known find(TextView word, TextView lowered) const;
    /// The classes of a word that has been found, in another letter case.
    WordClasses classesOf(EntryId entry, TextView word) const;
    /// The names of several words that begin with this one, the longest first.
    std::span<const Phrase> phrasesFrom(EntryId first) const;

private:
    /// A word as a list has it. Few words are listed in more than one letter case.
    struct Form {
        TextView word;
        WordClasses classes = 0;
        std::uint32_t next = 0;
    };
    struct Entry {
        TextView lowered;
        WordClasses anyCase = 0;
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
    void addWords(WordClass wordClass, TextView words);
    void addNames(WordClass wordClass, std::span<const titlenames::WordList> lists);
    void addPhrases(std::span<const titlenames::WordList> lists, bool isWork, std::vector<FoundPhrase>& found);
    void layOut(std::vector<FoundPhrase>& phrases);
    EntryId entryOf(TextView word);
    void grow();
    /// The slot of a word in lower case, or the free one where it belongs.
    std::size_t slotOf(TextView lowered, std::uint32_t hash) const;

    // The words in lower case where a list has them with capitals. They do not move.
    std::deque<Text> mLowered;
    // Number 0 of entries and forms is none.
    std::vector<Entry> mEntries = std::vector<Entry>(1);
    std::vector<Form> mForms = std::vector<Form>(1);
    std::vector<EntryId> mPhraseWords;
    std::vector<Phrase> mPhrases;
    // Open addressing: a power of two, at least half of it free.
    std::vector<Slot> mSlots = std::vector<Slot>(std::size_t{1} << 14U);
};

}  // namespace quorvel::titlewords
