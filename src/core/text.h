#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

/// Text as the library knows it: UTF-16 code units, and the ordinary string handling that every
/// element shares. All comparisons are binary; letter case is letter_case.h.
namespace quorvel {

using Text = std::u16string;
using TextView = std::u16string_view;

inline constexpr char16_t kEnDash = u'\u2013';
inline constexpr char16_t kLeftDoubleQuotationMark = u'\u201C';
inline constexpr char16_t kRightDoubleQuotationMark = u'\u201D';
inline constexpr char16_t kLeftSingleQuotationMark = u'\u2018';
inline constexpr char16_t kRightSingleQuotationMark = u'\u2019';

/// The only digits that references are numbered with.
inline constexpr TextView kDigits = u"0123456789";

constexpr bool isDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

/// True for "A" to "Z" and "a" to "z". The letters of every script are letter_case.h.
constexpr bool isAsciiLetter(char16_t unit) {
    return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

/// Every occurrence of `find` replaced, left to right; an empty `find` changes nothing.
Text replaceAll(TextView text, TextView find, TextView replacement);

bool startsWith(TextView text, TextView prefix);
bool endsWith(TextView text, TextView suffix);
bool contains(TextView text, TextView part);

/// True when the text began with the prefix, which is then gone from it.
bool removePrefix(Text& text, TextView prefix);
/// True when the text ended with the suffix, which is then gone from it.
bool removeSuffix(Text& text, TextView suffix);

/// The pieces between the separators, at least one. An empty separator gives the whole text.
std::vector<Text> split(TextView text, TextView separator);
Text join(const std::vector<Text>& pieces, TextView separator);

/// Whether a character passes the test. All of them are looked at, so that the compiler can take several at
/// once: for a test of some comparisons that hardly a text passes.
template <class Test>
bool anyUnit(TextView text, Test test) {
    // As wide as the characters are.
    char16_t any = 0;
    for (const char16_t unit : text) {
        any = static_cast<char16_t>(any | (test(unit) ? 1 : 0));
    }
    return any != 0;
}

/// True for a blank, a tab, a line break and the other Unicode spaces, the non-breaking ones included.
bool isSpace(char16_t unit);

/// Without the blanks (U+0020) at both ends, or without any of the units of `signs` there.
TextView trim(TextView text, TextView signs = u" ");

/// True when the text holds nothing but these units.
bool consistsOf(TextView text, TextView units);
/// True for one digit or more and nothing else.
bool isDigits(TextView text);

/// True when a table of texts has this one.
template <std::size_t N>
bool isOneOf(TextView text, const TextView (&texts)[N]) {
    return std::find(std::begin(texts), std::end(texts), text) != std::end(texts);
}

template <std::size_t N>
bool startsWithOneOf(TextView text, const TextView (&prefixes)[N]) {
    return std::any_of(std::begin(prefixes), std::end(prefixes),
                       [text](TextView prefix) { return startsWith(text, prefix); });
}

template <std::size_t N>
bool endsWithOneOf(TextView text, const TextView (&suffixes)[N]) {
    return std::any_of(std::begin(suffixes), std::end(suffixes),
                       [text](TextView suffix) { return endsWith(text, suffix); });
}

/// Which characters a text holds: one bit each for the letters of ASCII, whatever their case, and for its signs and
/// digits; the others share these.
constexpr std::uint64_t characterBits(TextView text) {
    std::uint64_t bits = 0;
    for (const char16_t unit : text) {
        const unsigned isNoLetter = ~static_cast<unsigned>(unit) & 64U;
        bits |= std::uint64_t{1} << (unit % 32U + isNoLetter / 2U);
    }
    return bits;
}

template <std::size_t N>
bool containsOneOf(TextView text, const TextView (&parts)[N]) {
    // Most parts have a character that the text does not.
    const std::uint64_t held = characterBits(text);
    return std::any_of(std::begin(parts), std::end(parts),
                       [=](TextView part) { return (characterBits(part) & ~held) == 0 && contains(text, part); });
}

/// What stands before the first occurrence of the separator; the whole text when there is none.
TextView before(TextView text, TextView separator);

/// One text made of several parts with a single allocation.
Text concatenate(std::initializer_list<TextView> parts);

/// A number in decimal digits.
Text decimal(std::int64_t number);

/// The clean-up that an element's text passes before it is read: non-breaking and other Unicode
/// spaces become blanks, zero-width characters and soft hyphens are dropped, runs of blanks become
/// one, and the ends are trimmed.
Text cleanUp(TextView text);
/// The same to a text that is nearly always clean, which then costs a look.
void cleanUpInPlace(Text& text);

}  // namespace quorvel
