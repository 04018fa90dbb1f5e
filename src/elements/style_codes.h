#pragma once

#include <cstdint>

namespace quorvel::stylecodes {

/// The codes by which some elements (title, edition, issue, refers-to) are told the style: the argument `format` of
/// their `Reset`. They are part of the interface. Any other code is kept and is none of these styles.
enum StyleCode : std::int16_t {
    /// MLA; a numbered edition gets no " ed." of its own.
    kMlaWithoutEd = -1,
    kAma = 0,
    kApa = 1,
    kMla = 2,
    kTurabian = 3,
};

/// In either of its codes.
constexpr bool isMla(std::int32_t styleCode) {
    return styleCode == kMla || styleCode == kMlaWithoutEd;
}

/// What describes a work stands in square brackets (APA 6 6.33, AMA 10 3.12), or else after a comma.
constexpr bool usesBrackets(std::int32_t styleCode) {
    return styleCode == kApa || styleCode == kAma;
}

}  // namespace quorvel::stylecodes
