#pragma once

#include <cstdint>
#include <vector>

#include "core/text.h"
#include "host/com/automation.h"

namespace quorvel::host {

// Arguments that a member takes as a variant, since they may be of several types or be left out. What
// does not convert is error 13 or 6.

/// Whether the caller left the argument out.
bool isMissing(const VARIANT& argument);

std::int16_t numberOf(const VARIANT& argument);
bool flagOf(const VARIANT& argument);
Text textOf(const VARIANT& argument);

/// The texts of an array in any of the forms that `elementsOf` reads.
std::vector<Text> textsOf(const VARIANT& array);

/// The flags of such an array.
std::vector<bool> flagsOf(const VARIANT& array);

}  // namespace quorvel::host
