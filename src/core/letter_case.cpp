#include "core/letter_case.h"

#include <algorithm>
#include <array>

namespace quorvel {

namespace {

constexpr char16_t upperOfAscii(char16_t unit) {
    return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - u'a' + u'A') : unit;
}

constexpr char16_t lowerOfAscii(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit - u'A' + u'a') : unit;
}

/// What the platform says, which takes its time: Latin letters with accents are asked for once, and general
/// punctuation, which has no case, not at all.
template <char16_t (LetterCase::*map)(char16_t) const>
char16_t mappedByPlatform(char16_t unit) {
    constexpr char16_t kFirst = u'\u0080';
    constexpr char16_t kEndOfLatin = u'\u0250';
    static const std::array<char16_t, kEndOfLatin - kFirst> latin = [] {
        std::array<char16_t, kEndOfLatin - kFirst> table{};
        for (char16_t letter = kFirst; letter < kEndOfLatin; ++letter) {
            table[letter - kFirst] = (letterCase().*map)(letter);
        }
        return table;
    }();
    if (unit < kEndOfLatin) {
        return latin[unit - kFirst];
    }
    return unit >= u'\u2000' && unit <= u'\u206F' ? unit : (letterCase().*map)(unit);
}

char16_t upperOf(char16_t unit) {
    return unit < u'\u0080' ? upperOfAscii(unit) : mappedByPlatform<&LetterCase::toUpper>(unit);
}

char16_t lowerOf(char16_t unit) {
    return unit < u'\u0080' ? lowerOfAscii(unit) : mappedByPlatform<&LetterCase::toLower>(unit);
}

bool isAscii(TextView text) {
    return !anyUnit(text, [](char16_t unit) { return unit >= u'\u0080'; });
}

template <class Map>
Text mapped(TextView text, Map map) {
    Text result(text);
    std::transform(result.begin(), result.end(), result.begin(), map);
    return result;
}

}  // namespace

Text toUpper(TextView text) {
    return isAscii(text) ? mapped(text, upperOfAscii) : mapped(text, upperOf);
}

Text toLower(TextView text) {
    return isAscii(text) ? mapped(text, lowerOfAscii) : mapped(text, lowerOf);
}

bool equalsIgnoringCase(TextView left, TextView right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char16_t a, char16_t b) { return a == b || lowerOf(a) == lowerOf(b); });
}

bool startsWithIgnoringCase(TextView text, TextView prefix) {
    return equalsIgnoringCase(text.substr(0, prefix.size()), prefix);
}

bool isCasedLetter(char16_t unit) {
    return upperOf(unit) != unit || lowerOf(unit) != unit;
}

}  // namespace quorvel
