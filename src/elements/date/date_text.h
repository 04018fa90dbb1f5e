#pragma once

#include <optional>

#include "core/dates.h"
#include "core/text.h"

/// Dates in the texts of references. The platform reads more into a text than a reference means: it
/// takes a missing year from today, and a time of day for a day of 1899. These functions let
/// through only what the text itself says.
namespace quorvel {

/// The date that the text names, its year included. Nothing for "March 3", "10:30" and every text
/// that is no date.
std::optional<DateValue> dateWithItsYear(TextView text);

/// A date of day, month and four-digit year, in any order that a style writes and with the month's
/// usual abbreviations, as the platform reads it best: "September 1, 2011" for "1 Sept. 2011",
/// "2011, September 1" and "September 1st, 2011", and "9/1/2011" or "2011-09-01" as they are.
/// Nothing for every other text.
std::optional<Text> completeDate(TextView text);

/// A date that has no day.
struct MonthsAndYear {
    /// One or two months or seasons, with what joins them: "May", "November/December", "Spring".
    Text months;
    Text year;
};

/// "June 2010", "2010, June", "May–June 2010", "Spring 2011". Months get their long names, or those that MLA
/// abbreviates (7.2). Nothing for every other text.
std::optional<MonthsAndYear> monthsAndYear(TextView text, bool useShortMonths);

/// Whether the word is an English month or an abbreviation of one, in any letter case and without
/// its full stop.
bool isMonth(TextView word);

}  // namespace quorvel
