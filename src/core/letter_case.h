#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "core/text.h"

namespace quorvel {

/// Port: simple case mapping, one UTF-16 code unit to one, in no particular language. The platform
/// folder holds an implementation for Windows and a portable twin; they agree below U+D800, and
/// from there on (surrogates and beyond) a unit maps to itself.
class LetterCase {
public:
    LetterCase() = default;
    LetterCase(const LetterCase&) = delete;
    LetterCase& operator=(const LetterCase&) = delete;
    virtual ~LetterCase() = default;

    virtual char16_t toUpper(char16_t unit) const = 0;
    virtual char16_t toLower(char16_t unit) const = 0;
};

/// The implementation of the platform that the library was built for.
const LetterCase& letterCase();

namespace lettercase {

constexpr char16_t upperOfAscii(char16_t unit) {
    const bool isSmall = static_cast<char16_t>(unit - u'a') <= u'z' - u'a';
    return static_cast<char16_t>(unit - (isSmall ? u'a' - u'A' : 0));
}
constexpr char16_t lowerOfAscii(char16_t unit) {
    const bool isLarge = static_cast<char16_t>(unit - u'A') <= u'Z' - u'A';
    return static_cast<char16_t>(unit + (isLarge ? u'a' - u'A' : 0));
}
/// What the platform says of the other characters; of Latin letters it is asked once.
char16_t upperBeyondAscii(char16_t unit);
char16_t lowerBeyondAscii(char16_t unit);

}  // namespace lettercase

inline char16_t toUpper(char16_t unit) {
    return unit < u'\u0080' ? lettercase::upperOfAscii(unit) : lettercase::upperBeyondAscii(unit);
}
inline char16_t toLower(char16_t unit) {
    return unit < u'\u0080' ? lettercase::lowerOfAscii(unit) : lettercase::lowerBeyondAscii(unit);
}
Text toUpper(TextView text);
Text toLower(TextView text);

/// A letter that has a lower case form of its own, in any script.
inline bool isCapital(char16_t unit) {
    return toLower(unit) != unit;
}
/// A letter that has an upper case form of its own, in any script.
inline bool isSmallLetter(char16_t unit) {
    return toUpper(unit) != unit;
}
/// True for a letter that has an upper and a lower case form and for no other character.
inline bool isCasedLetter(char16_t unit) {
    return isCapital(unit) || isSmallLetter(unit);
}

namespace lettercase {

/// The same letters in two texts of one length.
bool haveSameLetters(TextView left, TextView right);

}  // namespace lettercase

/// Equal but for letter case.
inline bool equalsIgnoringCase(TextView left, TextView right) {
    // Most texts differ in their length or their first letter.
    return left.size() == right.size() && (left.empty() || (toLower(left.front()) == toLower(right.front()) &&
                                                            lettercase::haveSameLetters(left, right)));
}
inline bool startsWithIgnoringCase(TextView text, TextView prefix) {
    // Most texts differ in their first letter.
    return prefix.empty() || (text.size() >= prefix.size() && toLower(text.front()) == toLower(prefix.front()) &&
                              equalsIgnoringCase(text.substr(0, prefix.size()), prefix));
}
bool endsWithIgnoringCase(TextView text, TextView suffix);
/// Where the part first stands at `from` or behind it, in any letter case; npos when it does not.
std::size_t findIgnoringCase(TextView text, TextView part, std::size_t from = 0);
bool containsIgnoringCase(TextView text, TextView part);

/// True when a table of texts has this one, in any letter case.
template <std::size_t N>
bool isOneOfIgnoringCase(TextView text, const TextView (&texts)[N]) {
    return std::any_of(std::begin(texts), std::end(texts),
                       [text](TextView entry) { return equalsIgnoringCase(text, entry); });
}

template <std::size_t N>
bool startsWithOneOfIgnoringCase(TextView text, const TextView (&prefixes)[N]) {
    return std::any_of(std::begin(prefixes), std::end(prefixes),
                       [text](TextView prefix) { return startsWithIgnoringCase(text, prefix); });
}

}  // namespace quorvel
