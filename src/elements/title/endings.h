#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "core/text.h"

/// Whether a word ends in one of a table of endings, of which it is asked for many.
namespace quorvel::titleshapes {

/// Which endings of a table have this last letter, one bit each: few have the one of a word.
template <std::size_t N>
constexpr std::array<std::uint64_t, 26> endingsByLetter(const TextView (&endings)[N]) {
    static_assert(N <= 64);
    std::array<std::uint64_t, 26> byLetter{};
    for (std::size_t i = 0; i < N; ++i) {
        byLetter[static_cast<std::size_t>(endings[i].back() - u'a')] |= std::uint64_t{1} << i;
    }
    return byLetter;
}

/// @tparam endings a constant table in lower case
template <const auto& endings>
bool endsWithAny(TextView lowered) {
    static constexpr auto kByLetter = endingsByLetter(endings);
    const unsigned last = lowered.empty() ? 26U : static_cast<unsigned>(lowered.back()) - u'a';
    for (std::uint64_t left = last < 26U ? kByLetter[last] : 0; left != 0; left &= left - 1) {
        if (lowered.ends_with(endings[std::countr_zero(left)])) {
            return true;
        }
    }
    return false;
}

}  // namespace quorvel::titleshapes
