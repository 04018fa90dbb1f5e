#include "core/letter_case.h"

#include <algorithm>

namespace quorvel {

namespace {

constexpr char16_t upperOfAscii(char16_t unit) {
    return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - u'a' + u'A') : unit;
}

constexpr char16_t lowerOfAscii(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit - u'A' + u'a') : unit;
}

char16_t upperOf(char16_t unit) {
    return unit < u'\u0080' ? upperOfAscii(unit) : letterCase().toUpper(unit);
}

char16_t lowerOf(char16_t unit) {
    return unit < u'\u0080' ? lowerOfAscii(unit) : letterCase().toLower(unit);
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
