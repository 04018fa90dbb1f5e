#pragma once

#include "core/dates.h"

namespace quorvel {

/// The portable twin of the platform's date functions: it reads the dates that stand in references
/// as OLE Automation reads them in US English, and writes them with the same patterns.
///
/// What is read: two or three numbers, of which a month may be given by its name or the name's first
/// three letters, with blanks, commas, "/" or "-" between them, weekdays anywhere, and a time of day
/// ("10:30", "10.30", "12:57:58 pm", "5 am") before or after the date or alone. Letter case does not
/// matter. "1990", "March" and "10:23 a.m." are no dates. A missing day is the first, a missing year
/// the current one (of Universal Time, so that the time zone does not matter). Years of two digits
/// lie between 1950 and 2049.
///
/// It differs from the platform, as Wine 8 has it, where no reference is likely to go: names that are
/// run together ("MonMay 7", "May am" without the blank), and characters that the platform swallows
/// behind a bare "a" or "p".
///
/// A pattern's other letters ("h", "c", "q") and its quoting marks have a meaning to the platform; here
/// they are written as they stand. So is a lone "y". A year before 1000 is written without zeros in
/// front.
class PortableDates final : public Dates {
public:
    std::optional<DateValue> parse(TextView text) const override;
    Text format(DateValue date, TextView pattern) const override;
};

}  // namespace quorvel
