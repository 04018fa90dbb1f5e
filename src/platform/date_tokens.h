#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "core/text.h"

namespace quorvel {

inline constexpr TextView kWeekdayNames[] = {u"Sunday",   u"Monday", u"Tuesday", u"Wednesday",
                                             u"Thursday", u"Friday", u"Saturday"};
/// The first letters of a weekday's name are its short form.
inline constexpr std::size_t kShortWeekday = 3;

inline constexpr std::size_t kMostDateNumbers = 3;
inline constexpr std::size_t kMostTimeNumbers = 3;

enum class DayHalf { kNone, kBeforeNoon, kAfterNoon };

/// A number of a date or time and what the text says about it.
struct DateNumber {
    int value = 0;
    bool isName = false;      // given as a month's name
    bool isTimePart = false;  // a time mark follows
    DayHalf half = DayHalf::kNone;

    bool belongsToTime() const { return isTimePart || half != DayHalf::kNone; }
};

/// The numbers of a text that could be a date, in order. Weekdays, blanks and commas say nothing.
class DateTokens {
public:
    /// False when the text holds anything that no date holds. Its numbers have to be small: mayBeDate.
    bool read(TextView text);

    std::span<const DateNumber> numbers() const { return {mNumbers.data(), mCount}; }

private:
    bool take(TextView token);
    bool takeWord(TextView word);
    bool takeMark(char16_t mark);
    bool add(const DateNumber& number);
    DateNumber& last() { return mNumbers[mCount - 1]; }

    std::array<DateNumber, kMostDateNumbers + kMostTimeNumbers> mNumbers;
    std::size_t mCount = 0;
    std::size_t mDateMarks = 0;
    bool mHasHalf = false;
};

}  // namespace quorvel
