#pragma once

#include "core/letter_case.h"

namespace quorvel {

/// Letter case from the platform's invariant locale, whatever locale the host or the user has.
class WindowsLetterCase final : public LetterCase {
public:
    char16_t toUpper(char16_t unit) const override;
    char16_t toLower(char16_t unit) const override;
};

}  // namespace quorvel
