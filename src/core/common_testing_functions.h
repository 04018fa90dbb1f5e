#pragma once

#include "core/text.h"

/// Tests on words, and the dates that stand in references.
namespace quorvel::CommonTestingFunctions {

/// True for the initials of a person: "J.", "J.-P.", "J", "JP", "J-P"; False for "Jo." and "Jos".
bool isInitial(TextView text);

/// True when every character is one of I V X L C D M in either case; their order is not checked.
/// False for an empty text.
bool isRomanNumeral(TextView roman);

/// True when the code of the first character is below that of "a": capitals, digits and punctuation
/// count, every letter beyond ASCII does not. False for an empty text.
bool isCapitalized(TextView text);

/// A date written by a pattern ("mmmm d, yyyy"; see Dates::format), with short month names as MLA
/// abbreviates them. A text of two words is month and year: the day is dropped from the pattern.
/// A text that is no date is returned with its abbreviated months written out.
/// @param formatString the pattern; loses its day as told.
Text FormatDate(TextView text, Text& formatString);

/// The month's name for one of its abbreviations in any letter case ("jan", "Sept", "D"), every
/// other word unchanged.
Text convertToLongMonthNameIfNecessary(TextView word);

/// Writes the short month names of a formatted date as MLA 7 (7.2) abbreviates them, where the
/// pattern asks for short names.
void FormatForMLA(Text& formatted, TextView formatString);

}  // namespace quorvel::CommonTestingFunctions
