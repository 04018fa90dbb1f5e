#pragma once

#include "core/dates.h"

namespace quorvel {

/// What both implementations of the dates port refuse before they look closer, so that they agree on
/// it and none is handed what it could stumble over.

/// False for a text that is too long for a date, that holds a NUL, at which the platform would stop
/// reading, or a number of more than four digits, which it would wrap round to a year. Leading zeros
/// do not count.
bool mayBeDate(TextView text);

/// False for a date before the year 100 or after 9999, and for a pattern that is too long or holds a
/// NUL.
bool canFormat(DateValue date, TextView pattern);

/// The pattern that stands for an empty one: the short date of US English.
inline constexpr TextView kShortDatePattern = u"m/d/yyyy";

}  // namespace quorvel
