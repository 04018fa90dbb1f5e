#pragma once

#include <algorithm>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <unordered_set>

#include "core/text.h"

namespace quorvel {

/// The library's own hash of a text is made for long ones; a word is a handful of units.
struct WordHash {
    using is_transparent = void;
    std::size_t operator()(TextView word) const {
        std::uint64_t hash = word.size();
        for (const char16_t unit : word) {
            hash = (hash ^ unit) * 0x9E3779B97F4A7C15U;
        }
        return static_cast<std::size_t>(hash ^ (hash >> 29U));
    }
};

/// A word list that is asked for every word of a text. It borrows its words, which are constants.
class WordSet {
public:
    WordSet() = default;
    explicit WordSet(TextView words) { add(words); }
    template <std::size_t N>
    explicit WordSet(const TextView (&words)[N]) {
        std::for_each(std::begin(words), std::end(words), [this](TextView word) { add(word); });
    }

    /// Adds the words of a blank-separated list.
    void add(TextView words) {
        while (!words.empty()) {
            const std::size_t end = std::min(words.find(u' '), words.size());
            if (end > 0) {
                mWords.insert(words.substr(0, end));
                mShapes.set(shapeOf(words.substr(0, end)));
            }
            words.remove_prefix(std::min(end + 1, words.size()));
        }
    }
    bool holds(TextView word) const { return !word.empty() && mShapes[shapeOf(word)] && mWords.contains(word); }

private:
    // Most words that are asked for are in no list: their length, first and last letter tell it without a
    // look-up.
    static constexpr std::size_t kShapes = std::size_t{16} * 32 * 32;
    static std::size_t shapeOf(TextView word) {
        return ((word.size() % 16) * 32 + word.front() % 32U) * 32 + word.back() % 32U;
    }

    std::unordered_set<TextView, WordHash> mWords;
    std::bitset<kShapes> mShapes;
};

}  // namespace quorvel
