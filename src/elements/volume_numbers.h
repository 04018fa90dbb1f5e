#pragma once

#include <cstdint>

#include "core/text.h"

/// The numbers of volumes, in Arabic and in Roman numerals.
namespace quorvel::volumenumbers {

/// "2" for "2", "vol. 2", "Volume 2", "IV" for "Vol. IV". A text that begins with "vol" and has no number stays.
TextView withoutWord(TextView volume);

/// True for digits and the capitals I, V, X, L, C, as volumes are numbered with, at least one.
bool isNumber(TextView text);

/// The value of a Roman numeral in either case. A letter counts twice its predecessor less when it is greater: "IV" is
/// 4, "XC" 90; the order is not checked. 0 for an empty text, for any text that holds another character ("I and II",
/// "I, II", "12"), for a single "C" or "D", which are rather a letter than a number, and for one that is longer than
/// any numeral.
std::int32_t romanToArabic(TextView numeral);

}  // namespace quorvel::volumenumbers
