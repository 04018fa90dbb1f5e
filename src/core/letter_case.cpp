#include "core/letter_case.h"

#include <algorithm>

namespace quorvel {

namespace {

char16_t upperOf(char16_t unit) {
    if (unit < u'\u0080') {
        return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - u'a' + u'A') : unit;
    }
    return letterCase().toUpper(unit);
}

char16_t lowerOf(char16_t unit) {
    if (unit < u'\u0080') {
        return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit - u'A' + u'a') : unit;
    }
    return letterCase().toLower(unit);
}

}  // namespace

Text toUpper(TextView text) {
    Text result(text);
    std::transform(result.begin(), result.end(), result.begin(), upperOf);
    return result;
}

Text toLower(TextView text) {
    Text result(text);
    std::transform(result.begin(), result.end(), result.begin(), lowerOf);
    return result;
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
