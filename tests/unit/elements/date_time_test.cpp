#include "elements/date/date_time.h"

#include <gtest/gtest.h>

#include "elements/date/date_text.h"
#include "support/recording_service.h"
#include "support/recording_sink.h"
#include "support/rows.h"

namespace quorvel {
namespace {

using DateTime = OutputTemplateDateTime;

using Options = DateTimeOptions;

const Options kDefault = {};
const Options kApa = {u"yyyy, mmmm d", true, false};
const Options kMla = {u"d mmmm yyyy", false, true};

std::shared_ptr<DateTime> dateTimeOf(const Options& options) {
    auto dateTime = std::make_shared<DateTime>();
    dateTime->Initialize(std::make_shared<RecordingSink>());
    dateTime->Reset(options);
    return dateTime;
}

std::vector<Text> valuesOf(const DateTime& dateTime) {
    return {dateTime.value(DateTime::kDate), dateTime.value(DateTime::kTime), dateTime.value(DateTime::kTimeZone)};
}

TEST(DateTime, ReadsDateTimeAndZone) {
    struct Case {
        TextView text;
        TextView date;
        TextView time;
        TextView zone;
        /// By the default options, as in APA, and as in MLA.
        TextView written;
        TextView apa;
        TextView mla;
    };
    constexpr Case kCases[] = {
        {u"September 1, 2011", u"September 1, 2011", u"", u"", u"September 1, 2011", u"2011, September 1",
         u"1 Sept. 2011"},
        {u"September 1, 2011, 10:23 a.m. PDT", u"September 1, 2011", u"10:23 a.m.", u"PDT",
         u"September 1, 2011, 10:23 a.m. PDT", u"2011, September 1 (10:23 a.m. PDT)", u"1 Sept. 2011, 10:23 a.m. PDT"},
        {u"1 Sept. 2011 (10:23 AM)", u"1 Sept. 2011", u"10:23 AM", u"", u"September 1, 2011, 10:23 a.m.",
         u"2011, September 1 (10:23 a.m.)", u"1 Sept. 2011, 10:23 a.m."},
        {u"On Sept 1st, 2011, at 10 PM.", u"Sept 1st, 2011", u"10 PM.", u"", u"September 1, 2011, 10 p.m.",
         u"2011, September 1 (10 p.m.)", u"1 Sept. 2011, 10 p.m."},
        {u"12:57:58 pm PDT", u"", u"12:57:58 pm", u"PDT", u"12:57:58 p.m. PDT", u"(12:57:58 p.m. PDT)",
         u"12:57:58 p.m. PDT"},
        {u"1:47:54 p.m. ET.", u"", u"1:47:54 p.m.", u"ET", u"1:47:54 p.m. ET", u"(1:47:54 p.m. ET)",
         u"1:47:54 p.m. ET"},
        {u"14:30..", u"", u"14:30", u"", u"14:30", u"(14:30)", u"14:30"},
        {u"(14:30 UTC+2)", u"", u"14:30", u"UTC+2", u"14:30 UTC+2", u"(14:30 UTC+2)", u"14:30 UTC+2"},
        {u"10:23am MAY 5, 2011", u"MAY 5, 2011", u"10:23am", u"", u"May 5, 2011, 10:23 a.m.",
         u"2011, May 5 (10:23 a.m.)", u"5 May 2011, 10:23 a.m."},
        {u"10:23 a. m. Pacific Daylight Time on 5-May-2011", u"5-May-2011", u"10:23 a. m.", u"Pacific Daylight Time",
         u"May 5, 2011, 10:23 a.m. Pacific Daylight Time", u"2011, May 5 (10:23 a.m. Pacific Daylight Time)",
         u"5 May 2011, 10:23 a.m. Pacific Daylight Time"},
        {u"June 2010, 0:05", u"June 2010", u"0:05", u"", u"June 2010, 0:05", u"2010, June (0:05)", u"June 2010, 0:05"},
        {u"2010, Sept", u"2010, Sept", u"", u"", u"September 2010", u"2010, September", u"Sept. 2010"},
        {u"Nov./Dec. 2006", u"Nov./Dec. 2006", u"", u"", u"November/December 2006", u"2006, November/December",
         u"Nov./Dec. 2006"},
        {u"May\u2013June 2010", u"May\u2013June 2010", u"", u"", u"May\u2013June 2010", u"2010, May\u2013June",
         u"May\u2013June 2010"},
        {u"Spring 2011", u"Spring 2011", u"", u"", u"Spring 2011", u"2011, Spring", u"Spring 2011"},
        {u"2011-09-01 23:59 -05:00", u"2011-09-01", u"23:59", u"-05:00", u"September 1, 2011, 23:59 -05:00",
         u"2011, September 1 (23:59 -05:00)", u"1 Sept. 2011, 23:59 -05:00"},
        {u"", u"", u"", u"", u"", u"", u""},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(testing::PrintToString(Text(c.text)));
        const auto dateTime = dateTimeOf(kDefault);
        Text text(c.text);
        dateTime->Parse(text, {});
        EXPECT_EQ(text, u"");
        EXPECT_EQ(valuesOf(*dateTime), (std::vector<Text>{Text(c.date), Text(c.time), Text(c.zone)}));
        EXPECT_EQ(dateTime->toString(false, false, false), c.written);
        EXPECT_EQ(dateTime->toString(true, true, false), c.written);
        EXPECT_EQ(dateTimeOf(kApa)->formatStr(c.text), c.apa);
        EXPECT_EQ(dateTimeOf(kMla)->formatStr(c.text), c.mla);
    }
}

TEST(DateTime, WritesOnlyCompleteDatesByThePattern) {
    // In the default pattern; where nothing is given, as it stands.
    struct Case {
        TextView text;
        TextView written = {};
    };
    // Texts with a time in them that are more than date and time.
    // No times at all.
    const auto kCases = rows<Case>(
        u"2011, September 1 => September 1, 2011 || sep. 1 2011 => September 1, 2011 || "
        u"September 1, 2011. => September 1, 2011 || 9/1/2011 => September 1, 2011 || "
        u"2012-02-29 => February 29, 2012 || June 2010 B || March April May 2010 || 2010 June 2010 || 2011 || "
        u"September 1 || 1 || May 5-8, 2011 || May 5, 2011\u2013June 1, 2011 || May 5, 2011- || May 10-11 || "
        u"May 5, 11 || 9/1/11 || 5.12.2010 || 29 Feb. 2011 || Thursday, September 1, 2011 || [September 1, 2011] || "
        u"September 1, 2011? || 1 Brumaire 2011 || May 5, 0990 || n.d. || "
        u"September 1, 2011, 10:23 a.m. local time || 10:23 a.m. local time || September 1, 2011 (10:23 a.m. || "
        u"\u201CSeptember 1, 2011\u201D 10:23 a.m. || (September 1, 2011, 10:23 a.m.) || 1 a.m., 2 a.m. || 25:00 || "
        u"10:60 || 10:5 || 10:23:45.5 || 110 a.m.");
    for (const Case& c : kCases) {
        SCOPED_TRACE(testing::PrintToString(Text(c.text)));
        const auto dateTime = dateTimeOf(kDefault);
        EXPECT_EQ(dateTime->formatStr(c.text), c.written.empty() ? c.text : c.written);
        EXPECT_EQ(dateTime->value(DateTime::kTime), u"");
    }
}

TEST(DateTime, ReadsATimeThatTheHostKeepsApart) {
    struct Case {
        TextView text;
        TextView secondaryText;
        TextView written;
    };
    constexpr Case kCases[] = {
        {u"September 1, 2011", u"12:57:58 pm PDT", u"September 1, 2011 (12:57:58 p.m. PDT)"},
        {u"September 1, 2011", u" (10:23 AM) ", u"September 1, 2011 (10:23 a.m.)"},
        {u"September 1, 2011, 9:00 ET", u"10:23", u"September 1, 2011 (10:23)"},
        {u"Spring 2011", u"noon", u"Spring 2011 (noon)"},
        {u"Spring 2011", u"May 1, 10:23 AM", u"Spring 2011 (May 1, 10:23 AM)"},
        {u"", u"10:23", u"(10:23)"},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(testing::PrintToString(Text(c.text)));
        const auto dateTime = dateTimeOf({.parenthesize = true});
        Text text(c.text);
        dateTime->Parse(text, c.secondaryText);
        EXPECT_EQ(dateTime->toString(false, false, false), c.written);
    }
}

TEST(DateTime, ReadsItsOwnOutput) {
    constexpr TextView kFormats[] = {u"mmmm d, yyyy", u"yyyy, mmmm d", u"d mmmm yyyy", u"d mmm yyyy",
                                     u"mmm d, yyyy",  u"m/d/yyyy",     u"yyyy-mm-dd"};
    constexpr TextView kDates[] = {u"",          u"September 1, 2011", u"31 Dec. 1999", u"May 5, 2011",
                                   u"June 2010", u"May-June 2010"};
    constexpr TextView kTimes[] = {u"", u"10:23 AM", u"12:57:58 p.m.", u"14:30"};
    constexpr TextView kZones[] = {u"", u"PDT", u"Greenwich Mean Time", u"+05:30"};
    const auto check = [](const Options& options, TextView date, TextView time, TextView zone) {
        const auto dateTime = dateTimeOf(options);
        dateTime->value(DateTime::kDate, date);
        dateTime->value(DateTime::kTime, time);
        dateTime->value(DateTime::kTimeZone, zone);
        const Text written = dateTime->toString(false, false, false);
        EXPECT_EQ(dateTime->formatStr(written), written);
        EXPECT_EQ(dateTime->value(DateTime::kTimeZone), zone) << testing::PrintToString(written);
    };
    for (const TextView format : kFormats) {
        for (const bool parenthesize : {false, true}) {
            for (const bool useShortMonths : {false, true}) {
                for (const TextView date : kDates) {
                    check({Text(format), parenthesize, useShortMonths}, date, u"", u"");
                    for (const TextView time : kTimes) {
                        for (const TextView zone : kZones) {
                            if (!time.empty()) {
                                check({Text(format), parenthesize, useShortMonths}, date, time, zone);
                            }
                        }
                    }
                }
            }
        }
    }
}

TEST(DateTime, ADateNamesItsYearItself) {
    struct Case {
        TextView text;
        bool hasDate;
    };
    constexpr Case kCases[] = {
        {u"May 5, 1990", true},    {u"June 2010", true}, {u"5/12/90", true},
        {u"1 90", true},           {u"March 3", false},  {u"Monday, March 3", false},
        {u"March 3 10:45", false}, {u"10:45", false},    {u"10:45:58", false},
        {u"12/5", false},          {u"1/1/1", false},    {u"10.45", false},
        {u"Paris", false},         {u"", false},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(testing::PrintToString(Text(c.text)));
        EXPECT_EQ(dateWithItsYear(c.text).has_value(), c.hasDate);
    }
}

class DateTimeReports : public ReportingTest {};

TEST_F(DateTimeReports, HasThreeValues) {
    const auto dateTime = dateTimeOf(kDefault);
    dateTime->value(DateTime::kTime, u"10 AM");
    dateTime->value(DateTime::kTimeZone, u"ET");
    EXPECT_EQ(dateTime->toString(false, false, false), u"10 a.m. ET");
    dateTime->value(DateTime::kTime, u"");
    EXPECT_EQ(dateTime->toString(false, false, false), u"ET");
    dateTime->value(DateTime::kDate, u"2011");
    EXPECT_EQ(dateTime->toString(false, false, false), u"2011, ET");
    EXPECT_TRUE(service().errors().empty());
    for (const std::int16_t index : {std::int16_t{-1}, std::int16_t{3}}) {
        EXPECT_EQ(dateTime->value(index), u"");
        dateTime->value(index, u"lost");
        EXPECT_EQ(service().errors().size(), 2U);
        service().forget();
    }
    EXPECT_EQ(valuesOf(*dateTime), (std::vector<Text>{u"2011", u"", u"ET"}));
}

TEST_F(DateTimeReports, WorksWithDefaultOptionsBeforeAnyReset) {
    const auto sink = std::make_shared<RecordingSink>();
    sink->Add(u"the host's own text");
    DateTime dateTime;
    dateTime.Initialize(sink);
    EXPECT_EQ(dateTime.toString(false, false, false), u"");
    EXPECT_EQ(dateTime.formatStr(u"1 Sept. 2011, 10:23 am"), u"September 1, 2011, 10:23 a.m.");
    EXPECT_TRUE(contains(dateTime.toString(false, false, true), u"{\\f0 September 1, 2011}"));
    EXPECT_EQ(sink->plain(), u"the host's own text");
    dateTime.Reset({u"", true});
    EXPECT_EQ(dateTime.toString(false, false, false), u"September 1, 2011 (10:23 a.m.)");
    EXPECT_TRUE(service().errors().empty());
}

TEST(DateTime, ACloneHasOptionsAndValues) {
    const auto dateTime = dateTimeOf(kApa);
    dateTime->formatStr(u"1 Sept. 2011, 10:23 am ET");
    const auto clone = dateTime->Clone();
    EXPECT_EQ(clone->toString(false, false, false), u"2011, September 1 (10:23 a.m. ET)");
    clone->Reset(kMla);
    EXPECT_EQ(clone->formatStr(u"May 5, 2011"), u"5 May 2011");
    EXPECT_EQ(dateTime->toString(false, false, false), u"2011, September 1 (10:23 a.m. ET)");
}

TEST_F(DateTimeReports, AnElementWithoutSinkStillWritesToTheHosts) {
    DateTime dateTime;
    dateTime.Initialize(nullptr);
    EXPECT_EQ(service().errors().size(), 1U);
    EXPECT_EQ(dateTime.formatStr(u"1 Sept. 2011"), u"");
    const auto sink = std::make_shared<RecordingSink>();
    dateTime.ToFormattedString(sink, false, false);
    EXPECT_EQ(sink->plain(), u"September 1, 2011");
}

}  // namespace
}  // namespace quorvel
