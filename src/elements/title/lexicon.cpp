#include "elements/title/lexicon.h"

#include <algorithm>
#include <cstring>

#include "core/letter_case.h"

namespace quorvel::titlewords {

namespace {

bool areSame(TextView left, TextView right) {
    return left.size() == right.size() && std::memcmp(left.data(), right.data(), left.size() * sizeof(char16_t)) == 0;
}

/// Four letters at a time: a word is a handful of them.
std::uint32_t hashOf(TextView word) {
    constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15U;
    std::uint64_t hash = word.size() * kFactor;
    for (; word.size() >= 4; word.remove_prefix(4)) {
        std::uint64_t letters = 0;
        std::memcpy(&letters, word.data(), sizeof letters);
        hash = (hash ^ letters) * kFactor;
        hash ^= hash >> 32U;
    }
    std::uint64_t rest = 0;
    for (const char16_t unit : word) {
        rest = rest << 16U | unit;
    }
    hash = (hash ^ rest) * kFactor;
    return static_cast<std::uint32_t>(hash >> 32U);
}

/// The same letters in the same case; the lists write the straight apostrophe.
bool isWrittenAs(TextView word, TextView listed) {
    return std::equal(word.begin(), word.end(), listed.begin(), listed.end(), [](char16_t unit, char16_t inList) {
        return unit == inList || (unit == kApostrophe && inList == u'\'');
    });
}

/// Takes the first word off a list.
TextView takeFirst(TextView& list, char16_t separator) {
    const TextView first = list.substr(0, list.find(separator));
    list.remove_prefix(std::min(first.size() + 1, list.size()));
    return first;
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
    for (const WordList& list : commonWords()) {
        addWords(list.wordClass, list.words);
    }
    addNames(kPlace, {titlenames::kPlaces, titlenames::kPlacesCount});
    addNames(kPlace, {titlenames::kRegions, titlenames::kRegionsCount});
    addNames(kPlace, {titlenames::kTowns, titlenames::kTownsCount});
    addNames(kName, {titlenames::kNames, titlenames::kNamesCount});
    addNames(kName, {titlenames::kEponyms, titlenames::kEponymsCount});
    addNames(kName, {titlenames::kLastNames, titlenames::kLastNamesCount});
    addNames(kName, {titlenames::kLore, titlenames::kLoreCount});
    addNames(kName, {titlenames::kGenera, titlenames::kGeneraCount});
    addNames(kGivenName, {titlenames::kGivenNames, titlenames::kGivenNamesCount});
    addNames(kGivenName, {titlenames::kMoreGivenNames, titlenames::kMoreGivenNamesCount});
    std::vector<FoundPhrase> phrases;
    addPhrases({titlenames::kPhrases, titlenames::kPhrasesCount}, false, phrases);
    addPhrases({titlenames::kCommonWordNames, titlenames::kCommonWordNamesCount}, false, phrases);
    addPhrases({titlenames::kNoNames, titlenames::kNoNamesCount}, false, phrases);
    addPhrases({titlenames::kWorks, titlenames::kWorksCount}, true, phrases);
    layOut(phrases);
}

Known Lexicon::find(TextView word, TextView lowered) const {
    const EntryId entry = mSlots[slotOf(lowered, hashOf(lowered))].entry;
    return {entry, classesOf(entry, word)};
}

WordClasses Lexicon::classesOf(EntryId entry, TextView word) const {
    WordClasses classes = mEntries[entry].anyCase;
    for (std::uint32_t form = mEntries[entry].form; form != 0; form = mForms[form].next) {
        if (isWrittenAs(word, mForms[form].word)) {
            classes |= mForms[form].classes;
        }
    }
    return classes;
}

std::span<const Phrase> Lexicon::phrasesFrom(EntryId first) const {
    return std::span(mPhrases).subspan(mEntries[first].firstPhrase, mEntries[first].phrases);
}

void Lexicon::addWords(WordClass wordClass, TextView words) {
    while (!words.empty()) {
        const TextView word = takeFirst(words, u' ');
        if (word.empty()) {
            continue;
        }
        Entry& entry = mEntries[entryOf(word)];
        if ((wordClass & kKnownAsWritten) == 0) {
            entry.anyCase |= wordClass;
            continue;
        }
        std::uint32_t form = entry.form;
        while (form != 0 && mForms[form].word != word) {
            form = mForms[form].next;
        }
        if (form == 0) {
            form = static_cast<std::uint32_t>(mForms.size());
            mForms.push_back({word, 0, entry.form});
            entry.form = form;
        }
        mForms[form].classes |= wordClass;
    }
}

void Lexicon::addNames(WordClass wordClass, std::span<const titlenames::WordList> lists) {
    for (const titlenames::WordList& list : lists) {
        addWords(wordClass, list.words);
    }
}

void Lexicon::addPhrases(std::span<const titlenames::WordList> lists, bool isWork, std::vector<FoundPhrase>& found) {
    for (const titlenames::WordList& list : lists) {
        TextView rest = list.words;
        while (!rest.empty()) {
            TextView text = takeFirst(rest, u'|');
            TextView first = withoutMarks(before(text, u" "));
            if (endsWith(first, u"'s")) {
                first.remove_suffix(2);
            }
            FoundPhrase next = {entryOf(first), mPhraseWords.size(), {}};
            next.phrase.isWork = isWork;
            for (std::size_t k = 0; !text.empty() && k < Phrase::kMostWords; ++k) {
                const TextView word = takeFirst(text, u' ');
                next.phrase.capitals |= toLower(word.substr(0, 1)) != word.substr(0, 1) ? 1U << k : 0U;
                mPhraseWords.push_back(entryOf(withoutMarks(word)));
            }
            found.push_back(next);
        }
    }
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

EntryId Lexicon::entryOf(TextView word) {
    const Text lowered = toLower(word);
    const std::uint32_t hash = hashOf(lowered);
    Slot& slot = mSlots[slotOf(lowered, hash)];
    if (slot.entry != 0) {
        return slot.entry;
    }
    const auto entry = static_cast<EntryId>(mEntries.size());
    slot = {hash, entry};
    mEntries.push_back({lowered == word ? word : TextView(mLowered.emplace_back(lowered))});
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

std::size_t Lexicon::slotOf(TextView lowered, std::uint32_t hash) const {
    const std::size_t mask = mSlots.size() - 1;
    std::size_t slot = hash & mask;
    while (mSlots[slot].entry != 0 &&
           (mSlots[slot].hash != hash || !areSame(mEntries[mSlots[slot].entry].lowered, lowered))) {
        slot = (slot + 1) & mask;
    }
    return slot;
}

}  // namespace quorvel::titlewords
