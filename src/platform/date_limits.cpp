#include "platform/date_limits.h"

#include <algorithm>
#include <cmath>

namespace quorvel {

namespace {

// "Wednesday, September 30, 2011, 12:57:58 pm" has 42 characters.
constexpr std::size_t kLongestDate = 128;
constexpr std::size_t kMostDigits = 4;
// The platform keeps a pattern's tokens in 255 bytes, and a character can need two of them.
constexpr std::size_t kLongestPattern = 100;

constexpr DateValue kFirstDay = -657434;  // 1 January 100
constexpr DateValue kLastDay = 2958465;   // 31 December 9999

bool hasLongNumber(TextView text) {
    std::size_t digits = 0;
    for (const char16_t unit : text) {
        const bool isLeadingZero = unit == u'0' && digits == 0;
        digits = isDigit(unit) ? digits + (isLeadingZero ? 0 : 1) : 0;
        if (digits > kMostDigits) {
            return true;
        }
    }
    return false;
}

}  // namespace

bool mayBeDate(TextView text) {
    return text.size() <= kLongestDate && !contains(text, TextView(u"\0", 1)) && !hasLongNumber(text);
}

bool canFormat(DateValue date, TextView pattern) {
    const DateValue day = std::trunc(date);
    return day >= kFirstDay && day <= kLastDay && pattern.size() <= kLongestPattern &&
           !contains(pattern, TextView(u"\0", 1));
}

}  // namespace quorvel
