#include "platform/portable_dates.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <span>
#include <string>

#include "core/letter_case.h"
#include "core/months.h"
#include "platform/date_limits.h"
#include "platform/date_tokens.h"

namespace quorvel {

namespace {

// Years of two digits end with this one, and so begin a century earlier.
constexpr int kLastShortYear = 2049;

using Calendar = std::chrono::year_month_day;
constexpr std::chrono::sys_days kDayZero = std::chrono::year{1899} / std::chrono::December / 30;
constexpr int kMonthsInYear = 12;
constexpr int kLongestMonth = 31;
constexpr int kSecondsInDay = 24 * 60 * 60;

constexpr std::size_t kNoName = static_cast<std::size_t>(-1);

/// The numbers of a date in the order in which they can stand: Y year, M month, D day. Of the orders
/// of a shape the first that gives a day of the calendar is taken.
struct Shape {
    std::size_t numbers = 0;
    std::size_t firstName = kNoName;  // which number is the first that was given as a month's name
    std::array<TextView, 4> orders;
};

constexpr Shape kShapes[] = {
    {2, kNoName, {u"MD", u"DM", u"MY", u"YM"}},      // 12/5, 13/5, 5/1990, 1990/5
    {2, 0, {u"MD", u"MY"}},                          // May 5, May 1990
    {2, 1, {u"DM", u"YM"}},                          // 5 May, 1990 May
    {3, kNoName, {u"MDY", u"YMD", u"DMY", u"YDM"}},  // 12/5/1990, 1990-12-05, 13/5/1990
    {3, 0, {u"MDY"}},                                // May 5, 1990
    {3, 1, {u"YMD", u"DMY"}},                        // 1990 May 5, 5 May 1990
    {3, 2, {u"YDM"}},                                // 1990 5 May
};

int fullYear(int year) {
    if (year >= 100) {
        return year;
    }
    const int inLastCentury = kLastShortYear / 100 * 100 + year;
    return inLastCentury <= kLastShortYear ? inLastCentury : inLastCentury - 100;
}

std::chrono::year currentYear() {
    const auto today = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
    return Calendar(today).year();
}

/// The day that the numbers name in this order, or nothing when the calendar has no such day.
std::optional<DateValue> dayInOrder(std::span<const DateNumber> numbers, TextView order) {
    const auto valueOf = [&](char16_t part) -> std::optional<int> {
        const std::size_t place = order.find(part);
        return place == TextView::npos ? std::nullopt : std::optional(numbers[place].value);
    };
    const std::optional<int> year = valueOf(u'Y');
    const int month = valueOf(u'M').value_or(0);
    const int day = valueOf(u'D').value_or(1);
    // The calendar types hold a byte: 1793 would be January.
    if (month > kMonthsInYear || day > kLongestMonth) {
        return std::nullopt;
    }
    const Calendar date(year ? std::chrono::year(fullYear(*year)) : currentYear(),
                        std::chrono::month(static_cast<unsigned>(month)), std::chrono::day(static_cast<unsigned>(day)));
    return date.ok() ? std::optional<DateValue>((std::chrono::sys_days(date) - kDayZero).count()) : std::nullopt;
}

std::optional<DateValue> dayOf(std::span<const DateNumber> numbers) {
    const auto name =
        std::find_if(numbers.begin(), numbers.end(), [](const DateNumber& number) { return number.isName; });
    const std::size_t firstName = name == numbers.end() ? kNoName : static_cast<std::size_t>(name - numbers.begin());
    for (const Shape& shape : kShapes) {
        if (shape.numbers != numbers.size() || shape.firstName != firstName) {
            continue;
        }
        for (const TextView order : shape.orders) {
            if (const auto day = order.empty() ? std::nullopt : dayInOrder(numbers, order)) {
                return day;
            }
        }
    }
    return std::nullopt;
}

/// The part of a day that has passed at this time, or nothing when it is no time.
std::optional<double> timeOf(std::span<const DateNumber> numbers) {
    if (numbers.size() > kMostTimeNumbers) {
        return std::nullopt;
    }
    std::array<int, kMostTimeNumbers> parts{};
    std::transform(numbers.begin(), numbers.end(), parts.begin(),
                   [](const DateNumber& number) { return number.value; });
    auto [hours, minutes, seconds] = parts;
    if (hours > 23 || minutes > 59 || seconds > 59) {
        return std::nullopt;
    }
    const auto saysHalf = [&](DayHalf half) {
        return std::any_of(numbers.begin(), numbers.end(),
                           [half](const DateNumber& number) { return number.half == half; });
    };
    if (saysHalf(DayHalf::kBeforeNoon) && hours == 12) {
        hours = 0;
    } else if (saysHalf(DayHalf::kAfterNoon) && hours < 12) {
        hours += 12;
    }
    return static_cast<double>((hours * 60 + minutes) * 60 + seconds) / kSecondsInDay;
}

/// The numbers that make up the first time of day: each but the last is followed by a time mark. Nothing
/// when the last mark has no number behind it.
std::optional<std::span<const DateNumber>> findTime(std::span<const DateNumber> numbers) {
    const auto belongsToTime = [](const DateNumber& number) { return number.belongsToTime(); };
    const auto begin = std::find_if(numbers.begin(), numbers.end(), belongsToTime);
    auto end = std::find_if_not(begin, numbers.end(), [](const DateNumber& number) { return number.isTimePart; });
    if (begin == numbers.end()) {
        return std::span<const DateNumber>();
    }
    return end == numbers.end() ? std::nullopt : std::optional(std::span(begin, end + 1));
}

/// The time stands before or behind the date; what is left must not be another time.
std::optional<std::span<const DateNumber>> withoutTime(std::span<const DateNumber> numbers,
                                                       std::span<const DateNumber> time) {
    if (time.empty()) {
        return numbers;
    }
    const auto before = numbers.first(static_cast<std::size_t>(time.data() - numbers.data()));
    const auto behind = numbers.subspan(before.size() + time.size());
    const bool isAnotherTime =
        std::any_of(behind.begin(), behind.end(), [](const DateNumber& number) { return number.belongsToTime(); });
    if (isAnotherTime || (!before.empty() && !behind.empty())) {
        return std::nullopt;
    }
    return before.empty() ? behind : before;
}

Text digits(unsigned number, std::size_t width) {
    const std::string text = std::to_string(number);
    return Text(width > text.size() ? width - text.size() : 0, u'0').append(text.begin(), text.end());
}

unsigned yearOf(const Calendar& date) {
    return static_cast<unsigned>(static_cast<int>(date.year()));
}

const Month& monthOf(const Calendar& date) {
    return kMonths[static_cast<unsigned>(date.month()) - 1];
}

TextView weekdayName(const Calendar& date) {
    return kWeekdayNames[std::chrono::weekday(std::chrono::sys_days(date)).c_encoding()];
}

/// What is written for a run of letters in a pattern.
struct Code {
    TextView letters;
    Text (*write)(const Calendar& date);
};

// The longest of a letter first.
constexpr Code kCodes[] = {
    {u"dddd", [](const Calendar& date) { return Text(weekdayName(date)); }},
    {u"ddd", [](const Calendar& date) { return Text(weekdayName(date).substr(0, kShortWeekday)); }},
    {u"dd", [](const Calendar& date) { return digits(static_cast<unsigned>(date.day()), 2); }},
    {u"d", [](const Calendar& date) { return digits(static_cast<unsigned>(date.day()), 1); }},
    {u"mmmm", [](const Calendar& date) { return Text(monthOf(date).name); }},
    {u"mmm", [](const Calendar& date) { return Text(monthOf(date).shortName()); }},
    {u"mm", [](const Calendar& date) { return digits(static_cast<unsigned>(date.month()), 2); }},
    {u"m", [](const Calendar& date) { return digits(static_cast<unsigned>(date.month()), 1); }},
    {u"yyyy", [](const Calendar& date) { return digits(yearOf(date), 1); }},
    {u"yy", [](const Calendar& date) { return digits(yearOf(date) % 100, 2); }},
};

}  // namespace

std::optional<DateValue> PortableDates::parse(TextView text) const {
    DateTokens tokens;
    if (!mayBeDate(text) || !tokens.read(text)) {
        return std::nullopt;
    }
    const auto timeNumbers = findTime(tokens.numbers());
    const auto dateNumbers = timeNumbers ? withoutTime(tokens.numbers(), *timeNumbers) : std::nullopt;
    if (!dateNumbers) {
        return std::nullopt;
    }
    const auto time = timeNumbers->empty() ? 0.0 : timeOf(*timeNumbers);
    // A time of day alone belongs to day zero.
    const auto day = dateNumbers->empty() && !timeNumbers->empty() ? 0.0 : dayOf(*dateNumbers);
    if (!time || !day) {
        return std::nullopt;
    }
    // Before day zero, too, the fraction counts forward.
    return *day < 0 ? *day - *time : *day + *time;
}

Text PortableDates::format(DateValue date, TextView pattern) const {
    if (!canFormat(date, pattern)) {
        return {};
    }
    const Calendar calendar(kDayZero + std::chrono::days(static_cast<int>(date)));
    Text result;
    for (TextView rest = pattern.empty() ? kShortDatePattern : pattern; !rest.empty();) {
        const auto code = std::find_if(std::begin(kCodes), std::end(kCodes), [&](const Code& entry) {
            return equalsIgnoringCase(rest.substr(0, entry.letters.size()), entry.letters);
        });
        if (code != std::end(kCodes)) {
            result += code->write(calendar);
            rest.remove_prefix(code->letters.size());
        } else {
            result += rest[0];
            rest.remove_prefix(1);
        }
    }
    return result;
}

}  // namespace quorvel
