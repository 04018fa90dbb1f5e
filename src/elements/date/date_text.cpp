#include "elements/date/date_text.h"

#include <algorithm>
#include <vector>

#include "core/common_testing_functions.h"
#include "core/letter_case.h"
#include "core/months.h"

namespace quorvel {

namespace {

constexpr TextView kSeasons[] = {u"Spring", u"Summer", u"Fall", u"Autumn", u"Winter"};

// "1st", "2nd": the letters belong to the number.
constexpr TextView kOrdinalSuffixes[] = {u"st", u"nd", u"rd", u"th"};

// What may stand between the parts of a complete date, and what joins one that is all numbers.
constexpr TextView kSigns = u" ,.-/";
constexpr TextView kJoiningSigns = u"-/";
constexpr TextView kDigitsAndTheirSigns = u"0123456789-/";
constexpr TextView kJointsOfMonths = u"-/\u2013";

constexpr int kLastDay = 31;
constexpr std::size_t kDigitsOfYear = 4;

/// The value of a run of digits; more than four are no part of a date.
int valueOf(TextView digits) {
    int value = 0;
    for (const char16_t digit : digits.substr(0, kDigitsOfYear + 1)) {
        value = 10 * value + (digit - u'0');
    }
    return value;
}

/// The month of a name or an abbreviation; nothing for any other word.
const Month* monthOf(TextView word) {
    const Text name = CommonTestingFunctions::convertToLongMonthNameIfNecessary(word);
    const auto* const found = std::find_if(std::begin(kMonths), std::end(kMonths),
                                           [&](const Month& month) { return equalsIgnoringCase(month.name, name); });
    return found == std::end(kMonths) ? nullptr : found;
}

/// The numbers and words of a text, in their order.
struct DateParts {
    /// Without those of a time of day.
    std::vector<TextView> numbers;
    std::vector<TextView> words;
    /// There are signs that stand in no complete date.
    bool hasOtherSigns = false;
};

DateParts partsOf(TextView text) {
    DateParts parts;
    const auto isColon = [&](std::size_t at) { return at < text.size() && text[at] == u':'; };
    for (std::size_t from = 0; from < text.size();) {
        const bool isNumber = isDigit(text[from]);
        std::size_t to = from;
        while (to < text.size() && (isNumber ? isDigit(text[to]) : isCasedLetter(text[to]))) {
            ++to;
        }
        const TextView part = text.substr(from, to - from);
        const bool followsNumber = from > 0 && isDigit(text[from - 1]);
        if (part.empty()) {
            parts.hasOtherSigns = parts.hasOtherSigns || !contains(kSigns, text.substr(from, 1));
            ++to;
        } else if (isNumber) {
            if (!isColon(to) && (from == 0 || !isColon(from - 1))) {
                parts.numbers.push_back(part);
            }
        } else if (!followsNumber || !isOneOf(part, kOrdinalSuffixes)) {
            parts.words.push_back(part);
        }
        from = to;
    }
    return parts;
}

bool hasDayMonthAndYear(const DateParts& parts) {
    return !parts.hasOtherSigns &&
           ((parts.numbers.size() == 3 && parts.words.empty()) ||
            (parts.numbers.size() == 2 && parts.words.size() == 1 && isMonth(parts.words.front())));
}

/// Whether the year that the platform made of the text stands in it. Two digits are a year when they
/// can be nothing else, or when day and month are there as well.
bool namesYear(TextView text, int year) {
    const DateParts parts = partsOf(text);
    const bool isComplete = hasDayMonthAndYear(parts);
    return std::any_of(parts.numbers.begin(), parts.numbers.end(), [&](TextView number) {
        const int value = valueOf(number);
        return value == year || (number.size() == 2 && value == year % 100 && (value > kLastDay || isComplete));
    });
}

}  // namespace

std::optional<DateValue> dateWithItsYear(TextView text) {
    std::optional<DateValue> date = dates().parse(text);
    if (date && !namesYear(text, valueOf(dates().format(*date, u"yyyy")))) {
        date.reset();
    }
    return date;
}

std::optional<Text> completeDate(TextView text) {
    const DateParts parts = partsOf(text);
    if (!hasDayMonthAndYear(parts)) {
        return std::nullopt;
    }
    // "September 1, 2011-" is the beginning of a range.
    if (contains(kJoiningSigns, text.substr(0, 1)) || contains(kJoiningSigns, text.substr(text.size() - 1))) {
        return std::nullopt;
    }
    const auto isYear = [](TextView number) { return number.size() == kDigitsOfYear && number.front() != u'0'; };
    if (std::count_if(parts.numbers.begin(), parts.numbers.end(), isYear) != 1) {
        return std::nullopt;
    }
    Text date(text);
    if (parts.words.empty()) {
        if (!consistsOf(text, kDigitsAndTheirSigns)) {
            return std::nullopt;
        }
    } else {
        const bool yearFirst = isYear(parts.numbers.front());
        const TextView day = yearFirst ? parts.numbers.back() : parts.numbers.front();
        const TextView year = yearFirst ? parts.numbers.front() : parts.numbers.back();
        date = concatenate(
            {CommonTestingFunctions::convertToLongMonthNameIfNecessary(parts.words.front()), u" ", day, u", ", year});
    }
    return dateWithItsYear(date) ? std::optional<Text>(std::move(date)) : std::nullopt;
}

std::optional<MonthsAndYear> monthsAndYear(TextView text, bool useShortMonths) {
    const std::size_t year = text.find_first_of(kDigits);
    const bool isYearFirst = year == 0;
    if (year == TextView::npos || text.size() < year + kDigitsOfYear || !isDigits(text.substr(year, kDigitsOfYear))) {
        return std::nullopt;
    }
    MonthsAndYear result{{}, Text(text.substr(year, kDigitsOfYear))};
    TextView rest = trim(isYearFirst ? text.substr(kDigitsOfYear) : text.substr(0, year), u" ,");
    if (rest.empty() || (!isYearFirst && year + kDigitsOfYear != text.size())) {
        return std::nullopt;
    }
    // At most "month, joint, month", each month with the full stop of an abbreviation or without.
    for (int count = 0; !rest.empty(); ++count) {
        if (count == 2) {
            return std::nullopt;
        }
        if (count == 1) {
            if (!contains(kJointsOfMonths, rest.substr(0, 1))) {
                return std::nullopt;
            }
            result.months += rest.front();
            rest.remove_prefix(1);
        }
        const auto end = std::find_if_not(rest.begin(), rest.end(), isCasedLetter);
        const TextView word(rest.begin(), end);
        const Month* const month = monthOf(word);
        if (month == nullptr && !isOneOfIgnoringCase(word, kSeasons)) {
            return std::nullopt;
        }
        result.months += month == nullptr ? word : useShortMonths ? month->mla : month->name;
        rest.remove_prefix(word.size());
        rest.remove_prefix(startsWith(rest, u".") ? 1 : 0);
    }
    return result;
}

bool isMonth(TextView word) {
    return monthOf(word) != nullptr;
}

}  // namespace quorvel
