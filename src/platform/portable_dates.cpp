#include "platform/portable_dates.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "core/letter_case.h"
#include "platform/date_limits.h"

namespace quorvel {

namespace {

constexpr TextView kMonths[] = {u"January", u"February", u"March",     u"April",   u"May",      u"June",
                                u"July",    u"August",   u"September", u"October", u"November", u"December"};
constexpr TextView kWeekdays[] = {u"Sunday", u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday"};
constexpr TextView kBeforeNoon[] = {u"am", u"a"};
constexpr TextView kAfterNoon[] = {u"pm", u"p"};
constexpr std::size_t kShortName = 3;

// The marks between the parts of a date and of a time. Commas and blanks part both.
constexpr TextView kDateMarks = u"/-";
constexpr TextView kTimeMarks = u":.";
constexpr std::size_t kMostDateMarks = 2;

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
constexpr std::size_t kMostDateNumbers = 3;
constexpr std::size_t kMostTimeNumbers = 3;

enum class DayHalf { kNone, kBeforeNoon, kAfterNoon };

struct Number {
    int value = 0;
    bool isName = false;      // given as a month's name
    bool isTimePart = false;  // a time mark follows
    DayHalf half = DayHalf::kNone;

    bool belongsToTime() const { return isTimePart || half != DayHalf::kNone; }
};

bool isDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

bool isAsciiLetter(char16_t unit) {
    return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

bool isIn(std::span<const TextView> words, TextView word) {
    return std::any_of(words.begin(), words.end(), [&](TextView entry) { return equalsIgnoringCase(entry, word); });
}

/// The place of a name or of its short form in the table, from 1; 0 when it is not there.
int placeOfName(std::span<const TextView> names, TextView word) {
    const auto found = std::find_if(names.begin(), names.end(), [&](TextView name) {
        return equalsIgnoringCase(name, word) || equalsIgnoringCase(name.substr(0, kShortName), word);
    });
    return found == names.end() ? 0 : static_cast<int>(found - names.begin()) + 1;
}

/// The numbers of a text with what was said about each, in order.
class DateTokens {
public:
    /// False when the text holds anything that no date holds.
    bool read(TextView text) {
        for (std::size_t from = 0; from < text.size();) {
            const TextView rest = text.substr(from);
            const TextView token = nextToken(rest);
            if (!take(token)) {
                return false;
            }
            from += token.size();
        }
        // A mark has to have something behind it, if only a blank: the platform is as strict.
        return !text.empty() && !isMark(text.back());
    }

    std::span<const Number> numbers() const { return {mNumbers.data(), mCount}; }

private:
    static bool isDateMark(char16_t unit) { return kDateMarks.find(unit) != TextView::npos; }
    static bool isTimeMark(char16_t unit) { return kTimeMarks.find(unit) != TextView::npos; }
    static bool isMark(char16_t unit) { return unit == u',' || isDateMark(unit) || isTimeMark(unit); }

    /// A run of digits or of letters, else a single character.
    static TextView nextToken(TextView rest) {
        const auto run = [&](auto belongs) {
            return rest.substr(
                0, static_cast<std::size_t>(std::find_if_not(rest.begin(), rest.end(), belongs) - rest.begin()));
        };
        return isDigit(rest[0]) ? run(isDigit) : isAsciiLetter(rest[0]) ? run(isAsciiLetter) : rest.substr(0, 1);
    }

    bool take(TextView token) {
        if (isDigit(token[0])) {
            int value = 0;
            for (const char16_t digit : token) {
                value = value * 10 + (digit - u'0');
            }
            return add({.value = value});
        }
        return isAsciiLetter(token[0]) ? takeWord(token) : takeMark(token[0]);
    }

    bool takeWord(TextView word) {
        if (const int month = placeOfName(kMonths, word)) {
            return add({.value = month, .isName = true});
        }
        if (placeOfName(kWeekdays, word) != 0) {
            return true;
        }
        const bool beforeNoon = isIn(kBeforeNoon, word);
        if ((!beforeNoon && !isIn(kAfterNoon, word)) || mCount == 0 || last().belongsToTime()) {
            return false;
        }
        last().half = beforeNoon ? DayHalf::kBeforeNoon : DayHalf::kAfterNoon;
        return true;
    }

    bool takeMark(char16_t mark) {
        if (mark == u',' || isSpace(mark)) {
            return true;
        }
        if (mCount == 0) {
            return false;
        }
        if (isDateMark(mark)) {
            return ++mDateMarks <= kMostDateMarks;
        }
        if (isTimeMark(mark) && last().half == DayHalf::kNone) {
            last().isTimePart = true;
            return true;
        }
        return false;
    }

    bool add(const Number& number) {
        if (mCount == mNumbers.size()) {
            return false;
        }
        mNumbers[mCount++] = number;
        return true;
    }

    Number& last() { return mNumbers[mCount - 1]; }

    std::array<Number, kMostDateNumbers + kMostTimeNumbers> mNumbers;
    std::size_t mCount = 0;
    std::size_t mDateMarks = 0;
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
std::optional<DateValue> dayInOrder(std::span<const Number> numbers, TextView order) {
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

std::optional<DateValue> dayOf(std::span<const Number> numbers) {
    const auto name = std::find_if(numbers.begin(), numbers.end(), [](const Number& number) { return number.isName; });
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
std::optional<double> timeOf(std::span<const Number> numbers) {
    if (numbers.size() > kMostTimeNumbers) {
        return std::nullopt;
    }
    std::array<int, kMostTimeNumbers> parts{};
    std::transform(numbers.begin(), numbers.end(), parts.begin(), [](const Number& number) { return number.value; });
    auto [hours, minutes, seconds] = parts;
    if (hours > 23 || minutes > 59 || seconds > 59) {
        return std::nullopt;
    }
    const DayHalf half = numbers.back().half;
    if (half == DayHalf::kBeforeNoon && hours == 12) {
        hours = 0;
    } else if (half == DayHalf::kAfterNoon && hours < 12) {
        hours += 12;
    }
    return static_cast<double>((hours * 60 + minutes) * 60 + seconds) / kSecondsInDay;
}

/// The numbers that make up the first time of day: each but the last is followed by a time mark. Nothing
/// when the last mark has no number behind it.
std::optional<std::span<const Number>> findTime(std::span<const Number> numbers) {
    const auto belongsToTime = [](const Number& number) { return number.belongsToTime(); };
    const auto begin = std::find_if(numbers.begin(), numbers.end(), belongsToTime);
    auto end = std::find_if_not(begin, numbers.end(), [](const Number& number) { return number.isTimePart; });
    if (begin == numbers.end()) {
        return std::span<const Number>();
    }
    return end == numbers.end() ? std::nullopt : std::optional(std::span(begin, end + 1));
}

/// The time stands before or behind the date; what is left must not be another time.
std::optional<std::span<const Number>> withoutTime(std::span<const Number> numbers, std::span<const Number> time) {
    if (time.empty()) {
        return numbers;
    }
    const auto before = numbers.first(static_cast<std::size_t>(time.data() - numbers.data()));
    const auto behind = numbers.subspan(before.size() + time.size());
    const bool isAnotherTime =
        std::any_of(behind.begin(), behind.end(), [](const Number& number) { return number.belongsToTime(); });
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

TextView monthName(const Calendar& date) {
    return kMonths[static_cast<unsigned>(date.month()) - 1];
}

TextView weekdayName(const Calendar& date) {
    return kWeekdays[std::chrono::weekday(std::chrono::sys_days(date)).c_encoding()];
}

/// What is written for a run of letters in a pattern.
struct Code {
    TextView letters;
    Text (*write)(const Calendar& date);
};

// The longest of a letter first.
constexpr Code kCodes[] = {
    {u"dddd", [](const Calendar& date) { return Text(weekdayName(date)); }},
    {u"ddd", [](const Calendar& date) { return Text(weekdayName(date).substr(0, kShortName)); }},
    {u"dd", [](const Calendar& date) { return digits(static_cast<unsigned>(date.day()), 2); }},
    {u"d", [](const Calendar& date) { return digits(static_cast<unsigned>(date.day()), 1); }},
    {u"mmmm", [](const Calendar& date) { return Text(monthName(date)); }},
    {u"mmm", [](const Calendar& date) { return Text(monthName(date).substr(0, kShortName)); }},
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
