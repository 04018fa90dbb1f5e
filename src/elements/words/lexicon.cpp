#include "elements/words/lexicon.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "core/letter_case.h"

namespace quorvel::words {

using titlewords::WordClasses;

namespace {

constexpr std::size_t kLettersAtATime = 4;

std::uint64_t fourLettersAt(const char16_t* word) {
    std::uint64_t letters = 0;
    std::memcpy(&letters, word, sizeof letters);
    return letters;
}

/// Four letters at a time: a word is a handful of them. The last four overlap those before.
inline std::uint32_t hashOf(TextView word) {
    constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15U;
    const char16_t* const letters = word.data();
    const std::size_t size = word.size();
    std::uint64_t hash = size * kFactor;
    if (size >= kLettersAtATime) {
        for (std::size_t i = 0; i + kLettersAtATime < size; i += kLettersAtATime) {
            hash = (hash ^ fourLettersAt(letters + i)) * kFactor;
            hash ^= hash >> 32U;
        }
        hash ^= fourLettersAt(letters + size - kLettersAtATime);
    } else if (size > 0) {
        // All of three letters and fewer.
        hash ^= letters[0] | std::uint64_t{letters[size / 2]} << 16U | std::uint64_t{letters[size - 1]} << 32U;
    }
    return static_cast<std::uint32_t>(hash * kFactor >> 32U);
}

inline bool areSame(TextView left, TextView right) {
    const std::size_t size = left.size();
    if (size != right.size()) {
        return false;
    }
    if (size < kLettersAtATime) {
        return std::equal(left.begin(), left.end(), right.begin());
    }
    for (std::size_t i = 0; i + kLettersAtATime < size; i += kLettersAtATime) {
        if (fourLettersAt(left.data() + i) != fourLettersAt(right.data() + i)) {
            return false;
        }
    }
    const std::size_t last = size - kLettersAtATime;
    return fourLettersAt(left.data() + last) == fourLettersAt(right.data() + last);
}

/// The same letters in the same case; the lists write the straight apostrophe.
bool isWrittenAs(TextView word, TextView listed) {
    return std::equal(word.begin(), word.end(), listed.begin(), listed.end(), [](char16_t unit, char16_t inList) {
        return unit == inList || (unit == kApostrophe && inList == u'\'');
    });
}

/// Calls back with each part of a text between separators: where it begins and how long it is.
template <class Visit>
void forEachPart(TextView text, char16_t separator, Visit visit) {
    for (std::size_t from = 0; from < text.size();) {
        const std::size_t end = std::min(text.find(separator, from), text.size());
        visit(from, end - from);
        from = end + 1;
    }
}

/// Without the marks behind a word of a name, which are not part of the words of a title either.
TextView withoutMarks(TextView word) {
    return word.substr(0, word.find_last_not_of(u".,'") + 1);
}

}  // namespace

struct Lexicon::FoundPhrase {
    EntryId first;
    std::size_t begin;
    Phrase phrase;
};

const Lexicon& Lexicon::instance() {
    static const Lexicon lexicon;
    return lexicon;
}

Lexicon::Lexicon() {
    // Entries are fewer than the lines of all lists.
    mEntries.reserve(mSlots.size() / 2);
    mForms.reserve(mSlots.size() / 2);
    for (const WordList& list : wordLists()) {
        add(list);
    }
    std::vector<FoundPhrase> phrases;
    for (const PhraseList& list : phraseLists()) {
        add(list, phrases);
    }
    layOut(phrases);
}

inline std::size_t Lexicon::slotOf(TextView lowered, std::uint32_t hash) const {
    const std::size_t mask = mSlots.size() - 1;
    std::size_t slot = hash & mask;
    while (mSlots[slot].entry != 0 &&
           (mSlots[slot].hash != hash || !areSame(mEntries[mSlots[slot].entry].lowered, lowered))) {
        slot = (slot + 1) & mask;
    }
    return slot;
}

Known Lexicon::find(TextView word, TextView lowered) const {
    const std::uint32_t hash = hashOf(lowered);
    const EntryId id = mHashes[hash % kHashes] ? mSlots[slotOf(lowered, hash)].entry : 0;
    if (id == 0) {
        return {};
    }
    const Entry& entry = mEntries[id];
    return {id, entry.inPersons, entry.form == 0 ? entry.anyCase : classesOf(id, word)};
}

std::uint32_t Lexicon::inPersons(TextView lowered) const {
    const std::uint32_t hash = hashOf(lowered);
    return mHashesInPersons[hash % kHashesInPersons] ? mEntries[mSlots[slotOf(lowered, hash)].entry].inPersons : 0;
}

WordClasses Lexicon::classesOf(EntryId entry, TextView word) const {
    WordClasses classes = mEntries[entry].anyCase;
    for (std::uint32_t form = mEntries[entry].form; form != 0; form = mForms[form].next) {
        if (areSame(word, mForms[form].word) || isWrittenAs(word, mForms[form].word)) {
            classes |= mForms[form].classes;
        }
    }
    return classes;
}

std::span<const Phrase> Lexicon::phrasesFrom(EntryId first) const {
    return std::span(mPhrases).subspan(mEntries[first].firstPhrase, mEntries[first].phrases);
}

void Lexicon::add(const WordList& list) {
    const TextView loweredList = lowered(list.words);
    const WordClasses anyCase = list.inTitles & ~titlewords::kKnownAsWritten;
    const WordClasses asWritten = list.inTitles & titlewords::kKnownAsWritten;
    forEachPart(list.words, u'\n', [&](std::size_t at, std::size_t size) {
        const TextView word = loweredList.substr(at, size);
        Entry& entry = mEntries[entryOf(word)];
        if (list.inPersons != 0) {
            mHashesInPersons.set(hashOf(word) % kHashesInPersons);
        }
        entry.anyCase |= anyCase;
        entry.inPersons |= list.inPersons;
        if (asWritten != 0) {
            addForm(entry, list.words.substr(at, size), asWritten);
        }
    });
}

void Lexicon::add(const PhraseList& list, std::vector<FoundPhrase>& found) {
    const TextView loweredList = lowered(list.phrases);
    forEachPart(list.phrases, u'\n', [&](std::size_t begin, std::size_t length) {
        const TextView phrase = list.phrases.substr(begin, length);
        const TextView loweredPhrase = loweredList.substr(begin, length);
        // A title's word is looked for without "'s", too.
        TextView first = withoutMarks(before(loweredPhrase, u" "));
        if (endsWith(first, u"'s")) {
            first.remove_suffix(2);
        }
        FoundPhrase next = {entryOf(first), mPhraseWords.size(), {}};
        next.phrase.isWork = list.areWorks;
        forEachPart(phrase, u' ', [&](std::size_t at, std::size_t size) {
            const std::size_t k = mPhraseWords.size() - next.begin;
            next.phrase.capitals |= phrase[at] != loweredPhrase[at] ? 1U << k : 0U;
            mPhraseWords.push_back(entryOf(withoutMarks(loweredPhrase.substr(at, size))));
        });
        found.push_back(next);
    });
}

TextView Lexicon::lowered(TextView list) {
    Text text = toLower(list);
    return text == list ? list : TextView(mLowered.emplace_back(std::move(text)));
}

void Lexicon::addForm(Entry& entry, TextView word, WordClasses classes) {
    std::uint32_t form = entry.form;
    while (form != 0 && mForms[form].word != word) {
        form = mForms[form].next;
    }
    if (form == 0) {
        form = static_cast<std::uint32_t>(mForms.size());
        mForms.push_back({word, 0, entry.form});
        entry.form = form;
    }
    mForms[form].classes |= classes;
}

void Lexicon::layOut(std::vector<FoundPhrase>& phrases) {
    for (std::size_t i = 0; i < phrases.size(); ++i) {
        const std::size_t end = i + 1 < phrases.size() ? phrases[i + 1].begin : mPhraseWords.size();
        phrases[i].phrase.words = std::span(mPhraseWords).subspan(phrases[i].begin, end - phrases[i].begin);
    }
    std::stable_sort(phrases.begin(), phrases.end(), [](const FoundPhrase& a, const FoundPhrase& b) {
        return a.first != b.first ? a.first < b.first : a.phrase.words.size() > b.phrase.words.size();
    });
    mPhrases.reserve(phrases.size());
    for (const FoundPhrase& found : phrases) {
        Entry& entry = mEntries[found.first];
        if (entry.phrases++ == 0) {
            entry.firstPhrase = static_cast<std::uint32_t>(mPhrases.size());
        }
        mPhrases.push_back(found.phrase);
    }
}

EntryId Lexicon::entryOf(TextView lowered) {
    const std::uint32_t hash = hashOf(lowered);
    Slot& slot = mSlots[slotOf(lowered, hash)];
    if (slot.entry != 0) {
        return slot.entry;
    }
    const auto entry = static_cast<EntryId>(mEntries.size());
    slot = {hash, entry};
    mHashes.set(hash % kHashes);
    mEntries.push_back({lowered});
    if (mEntries.size() * 2 > mSlots.size()) {
        grow();
    }
    return entry;
}

void Lexicon::grow() {
    std::vector<Slot> old(mSlots.size() * 2);
    old.swap(mSlots);
    for (const Slot& slot : old) {
        if (slot.entry != 0) {
            mSlots[slotOf(mEntries[slot.entry].lowered, slot.hash)] = slot;
        }
    }
}

}  // namespace quorvel::words
