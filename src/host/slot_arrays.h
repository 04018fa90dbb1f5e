#pragma once

#include "host/com/automation.h"

#include "core/implementor.h"

namespace quorvel::host {

/// `ToFormattedStringImpl` for a caller outside the library: the slots travel as arrays of the caller's,
/// passed by reference, of texts and of formatted-text objects.
/// @return what the implementor returns; True, nothing to assemble, when an array cannot be used, which
///         is reported
bool fillSlotArrays(Implementor& implementor, bool isFootnote, VARIANT* items, VARIANT* formattedItems,
                    bool shortenedVersion);

}  // namespace quorvel::host
