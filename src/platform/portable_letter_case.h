#pragma once

#include "core/letter_case.h"

namespace quorvel {

/// Letter case from the C library's language-neutral UTF-8 locale, whatever locale the program runs in.
class PortableLetterCase final : public LetterCase {
public:
    char16_t toUpper(char16_t unit) const override;
    char16_t toLower(char16_t unit) const override;
};

}  // namespace quorvel
