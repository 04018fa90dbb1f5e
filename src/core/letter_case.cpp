#include "core/letter_case.h"

#include <algorithm>
#include <array>

namespace quorvel {

namespace {

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

bool isAscii(TextView text) {
    return !anyUnit(text, [](char16_t unit) { return unit >= u'\u0080'; });
}

/// In a form that the compiler takes several characters at a time of.
template <class Map>
Text mapped(TextView text, Map map) {
    Text result(text);
    char16_t* const units = result.data();
    const std::size_t size = result.size();
    for (std::size_t i = 0; i < size; ++i) {
        units[i] = map(units[i]);
    }
    return result;
}

// A lambda is inlined where a pointer to a function is not.
constexpr auto areSameIgnoringCase = [](char16_t left, char16_t right) {
    return left == right || toLower(left) == toLower(right);
};

}  // namespace

namespace lettercase {

char16_t upperBeyondAscii(char16_t unit) {
    return mappedByPlatform<&LetterCase::toUpper>(unit);
}

char16_t lowerBeyondAscii(char16_t unit) {
    return mappedByPlatform<&LetterCase::toLower>(unit);
}

bool haveSameLetters(TextView left, TextView right) {
    return std::equal(left.begin(), left.end(), right.begin(), areSameIgnoringCase);
}

}  // namespace lettercase

Text toUpper(TextView text) {
    return isAscii(text) ? mapped(text, [](char16_t unit) { return lettercase::upperOfAscii(unit); })
                         : mapped(text, [](char16_t unit) { return toUpper(unit); });
}

Text toLower(TextView text) {
    return isAscii(text) ? mapped(text, [](char16_t unit) { return lettercase::lowerOfAscii(unit); })
                         : mapped(text, [](char16_t unit) { return toLower(unit); });
}

bool endsWithIgnoringCase(TextView text, TextView suffix) {
    return text.size() >= suffix.size() && equalsIgnoringCase(text.substr(text.size() - suffix.size()), suffix);
}

std::size_t findIgnoringCase(TextView text, TextView part, std::size_t from) {
    if (part.empty()) {
        return from <= text.size() ? from : TextView::npos;
    }
    // Most texts and most positions fall at the first letter. Of the letters beyond ASCII some are ASCII in lower case.
    const char16_t first = toLower(part[0]);
    const char16_t capital = toUpper(first);
    if (!anyUnit(text, [=](char16_t unit) { return unit == first || unit == capital || unit >= u'\u0080'; })) {
        return TextView::npos;
    }
    const TextView rest = part.substr(1);
    for (std::size_t at = from; at + part.size() <= text.size(); ++at) {
        if (toLower(text[at]) == first && equalsIgnoringCase(text.substr(at + 1, rest.size()), rest)) {
            return at;
        }
    }
    return TextView::npos;
}

bool containsIgnoringCase(TextView text, TextView part) {
    return findIgnoringCase(text, part) != TextView::npos;
}

}  // namespace quorvel
