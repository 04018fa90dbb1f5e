#pragma once

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

Text toUpper(TextView text);
Text toLower(TextView text);
/// Equal but for letter case.
bool equalsIgnoringCase(TextView left, TextView right);
bool startsWithIgnoringCase(TextView text, TextView prefix);
/// True for a letter that has an upper and a lower case form and for no other character.
bool isCasedLetter(char16_t unit);

}  // namespace quorvel
