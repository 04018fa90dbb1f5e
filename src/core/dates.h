#pragma once

#include <optional>

#include "core/text.h"

namespace quorvel {

/// A moment as the platform's date functions count it: days since 30 December 1899, the time of day
/// as the fraction.
using DateValue = double;

/// Port: reading and writing dates, in US English whatever the machine's settings. The platform
/// folder holds an implementation over OLE Automation and a portable twin for the dates that stand
/// in references.
class Dates {
public:
    Dates() = default;
    Dates(const Dates&) = delete;
    Dates& operator=(const Dates&) = delete;
    virtual ~Dates() = default;

    /// The date that the text names, or nothing. A text without a year gets the current one, a time of
    /// day alone is in day zero.
    virtual std::optional<DateValue> parse(TextView text) const = 0;

    /// The date written by a pattern of d, dd, ddd, dddd, m, mm, mmm, mmmm, yy, yyyy (any letter
    /// case) and literal characters; an empty pattern is "m/d/yyyy". Nothing is written for a date
    /// outside the years 100 to 9999, nor by a pattern of more than 100 characters.
    virtual Text format(DateValue date, TextView pattern) const = 0;
};

/// The implementation of the platform that the library was built for.
const Dates& dates();

}  // namespace quorvel
