#include "core/dates.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <ostream>
#include <string>

#include "platform/date_cases.h"
#include "platform/hostile_environment.h"
#include "platform/portable_dates.h"
#include "support/shown.h"
#ifdef _WIN32
#include "platform/windows_dates.h"
#endif

namespace quorvel {
namespace {

using tests::DateCase;
using tests::FormatCase;

constexpr std::chrono::sys_days kDayZero = std::chrono::year{1899} / 12 / 30;
constexpr DateValue kFirstDay = -657434;
constexpr DateValue kLastDay = 2958465;

Text widen(const std::string& text) {
    return Text(text.begin(), text.end());
}

std::string dayText(const std::chrono::year_month_day& day) {
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02u-%02u", static_cast<int>(day.year()), static_cast<unsigned>(day.month()),
                  static_cast<unsigned>(day.day()));
    return text;
}

/// A date as the table writes it.
Text describe(std::optional<DateValue> date) {
    if (!date) {
        return u"no date";
    }
    const double day = std::trunc(*date);
    std::string text = dayText(kDayZero + std::chrono::days(static_cast<int>(day)));
    const auto seconds = static_cast<unsigned>(std::lround(std::fabs(*date - day) * 86400));
    if (seconds != 0) {
        char time[32];
        std::snprintf(time, sizeof time, " %02u:%02u:%02u", seconds / 3600, seconds / 60 % 60, seconds % 60);
        text += time;
    }
    return widen(text);
}

Text withCurrentYear(TextView date) {
    const std::chrono::year_month_day today(std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now()));
    return replaceAll(date, u"now", widen(std::to_string(static_cast<int>(today.year()))));
}

DateValue valueOf(const FormatCase& c) {
    const auto day = static_cast<DateValue>((c.day - kDayZero).count());
    return day < 0 ? day - c.time : day + c.time;
}

void expectTables(const Dates& dates) {
    for (const auto& cases : {tests::kDateCases, tests::kTimeCases}) {
        for (const DateCase& c : cases) {
            EXPECT_EQ(describe(dates.parse(c.text)), withCurrentYear(c.date)) << shown(c.text);
        }
    }
    for (const TextView text : tests::kNoDates) {
        EXPECT_EQ(describe(dates.parse(text)), u"no date") << shown(text);
    }
    for (const FormatCase& c : tests::kFormatCases) {
        EXPECT_EQ(dates.format(valueOf(c), c.pattern), c.text) << ::testing::PrintToString(Text(c.pattern));
    }
}

struct Implementation {
    const char* name;
    const Dates& dates;
};

void PrintTo(const Implementation& implementation, std::ostream* out) {
    *out << implementation.name;
}

const PortableDates kPortable;
#ifdef _WIN32
const WindowsDates kWindows;
#endif

const Implementation kImplementations[] = {
    {"Portable", kPortable},
#ifdef _WIN32
    {"Windows", kWindows},
#endif
};

class DatesTest : public ::testing::TestWithParam<Implementation> {
protected:
    const Dates& dates = GetParam().dates;
};

INSTANTIATE_TEST_SUITE_P(, DatesTest, ::testing::ValuesIn(kImplementations),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_P(DatesTest, ReadsAndWritesWhatTheTablesSay) {
    expectTables(dates);
}

TEST_P(DatesTest, TheUsersCountryDoesNotMatter) {
    for (const tests::Country& country : tests::kHostileCountries) {
        SCOPED_TRACE(country.posixLocale);
        const tests::HostileEnvironment environment(country);
        if (!environment.isInForce()) {
            GTEST_SKIP() << "no locale " << country.posixLocale << " on this machine";
        }
        expectTables(dates);
    }
}

TEST_P(DatesTest, ReadsEveryDateThatItWrites) {
    constexpr TextView kPatterns[] = {u"mmmm d, yyyy", u"d mmm yyyy", u"yyyy-mm-dd",
                                      u"m/d/yyyy",     u"d/m/yyyy",   u"dddd, mmmm dd, yyyy"};
    // A prime step meets every day, month and weekday.
    for (DateValue date = kFirstDay; date <= kLastDay; date += 1009) {
        for (const TextView pattern : kPatterns) {
            const Text text = dates.format(date, pattern);
            const auto read = dates.parse(text);
            // A day of 12 or less is read as the month.
            if (pattern != u"d/m/yyyy" || dates.format(date, u"dd") > u"12") {
                ASSERT_EQ(read, date) << ::testing::PrintToString(text);
            }
        }
    }
}

TEST_P(DatesTest, HostileTextsAreNoDates) {
    constexpr std::size_t kMillion = 1'000'000;
    for (const TextView unit : {u"1", u"0", u" ", u",", u"/", u"-", u":", u".", u"a", u"m", u"May ", u"1 ", u"Monday ",
                                u"1:", u"\u00A0", u"\xD800", u"\xFFFF"}) {
        Text text;
        while (text.size() < kMillion) {
            text += unit;
        }
        EXPECT_EQ(dates.parse(text), std::nullopt) << ::testing::PrintToString(Text(unit));
        EXPECT_EQ(dates.parse(text + u" May 1990"), std::nullopt) << ::testing::PrintToString(Text(unit));
    }
    // A NUL ends no text here.
    EXPECT_EQ(dates.parse(TextView(u"May 5, 1990\0", 12)), std::nullopt);
    EXPECT_EQ(dates.parse(TextView(u"May 5, 1990\0 and more", 21)), std::nullopt);
    EXPECT_EQ(dates.parse(TextView(u"\0May 5, 1990", 12)), std::nullopt);
    // The view's end counts, whatever stands behind it.
    EXPECT_EQ(describe(dates.parse(TextView(u"May 5, 19901").substr(0, 11))), u"1990-05-05");
}

TEST_P(DatesTest, WhatCannotBeWrittenIsEmpty) {
    constexpr DateValue kInfinity = std::numeric_limits<DateValue>::infinity();
    for (const DateValue date : {kFirstDay - 1, kLastDay + 1, 1e300, -1e300, kInfinity, -kInfinity,
                                 std::numeric_limits<DateValue>::quiet_NaN()}) {
        EXPECT_EQ(dates.format(date, u"yyyy"), u"") << date;
    }
    EXPECT_EQ(dates.format(kLastDay + 0.5, u"mmmm d, yyyy"), u"December 31, 9999");
    EXPECT_EQ(dates.format(0, Text(1'000'000, u'y')), u"");
    EXPECT_EQ(dates.format(0, Text(101, u'-')), u"");
    EXPECT_EQ(dates.format(0, Text(100, u'-')), Text(100, u'-'));
    EXPECT_EQ(dates.format(0, TextView(u"yyyy\0", 5)), u"");
}

// The platform takes the limit from the machine's settings; the twin has the one that Windows has now.
TEST(PortableDates, TwoDigitYearsEndWith2049) {
    EXPECT_EQ(describe(kPortable.parse(u"May 5, 30")), u"2030-05-05");
    EXPECT_EQ(describe(kPortable.parse(u"May 5, 49")), u"2049-05-05");
    EXPECT_EQ(describe(kPortable.parse(u"1 49")), u"2049-01-01");
    EXPECT_EQ(describe(kPortable.parse(u"1 50")), u"1950-01-01");
}

TEST(Dates, TheBuildsOwnImplementationIsInPlace) {
    EXPECT_EQ(describe(dates().parse(u"May 5, 1990")), u"1990-05-05");
    EXPECT_EQ(dates().format(0, u"mmmm d, yyyy"), u"December 30, 1899");
}

}  // namespace
}  // namespace quorvel
