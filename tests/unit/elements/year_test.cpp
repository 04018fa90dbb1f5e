#include "elements/year.h"

#include <gtest/gtest.h>

#include "support/recording_service.h"
#include "support/recording_sink.h"
#include "support/rows.h"
#include "support/style_file.h"

namespace quorvel {
namespace {

using Year = OutputTemplateYear;

Year yearOf(std::string_view style) {
    Year year;
    year.Initialize(nullptr);
    year.Reset(test::StyleFile::of(style).options("year", kYearOptions));
    return year;
}

TEST(Year, ReadsAndWritesEachVariant) {
    struct Case {
        TextView text;
        std::int32_t yearType;
        TextView year;
        TextView remainder;
        TextView mla;
        TextView apa;
        TextView ama;
    };
    constexpr Case kCases[] = {
        {u"1990", 0, u"1990", u"1990", u"1990", u"1990", u"1990"},
        {u"\u00A0 1990. ", 0, u"1990", u"1990", u"1990", u"1990", u"1990"},
        {u"1990a", 0, u"1990a", u"1990a", u"1990a", u"1990a", u"1990a"},
        {u"1990-1995", 0, u"1990-1995", u"1990-1995", u"1990-1995", u"1990\u20131995", u"1990-1995"},
        {u"1990\u20131995", 0, u"1990-1995", u"1990\u20131995", u"1990-1995", u"1990\u20131995", u"1990-1995"},
        {u"n.d.", 1, u"", u"", u"n.d.", u"n.d.", u"date unknown"},
        {u"date unknown", 1, u"", u"", u"n.d.", u"n.d.", u"date unknown"},
        // The point counts, and so does the letter case.
        {u"n.d", 0, u"n.d", u"n.d", u"n.d", u"n.d", u"n.d"},
        {u"N.D.", 0, u"N.D", u"N.D", u"N.D", u"N.D", u"N.D"},
        {u"[1990?]", 2, u"1990", u"1990", u"[1990?]", u"[1990?]", u"[1990?]"},
        {u"[1990-1995?].", 2, u"1990-1995", u"1990-1995", u"[1990-1995?]", u"[1990\u20131995?]", u"[1990-1995?]"},
        // The blank behind the word stays, deliberately.
        {u"[c. 1990]", 3, u" 1990", u" 1990", u"[c.  1990]", u"[ca.  1990]", u"[  1990]"},
        {u"[ca. 1990]", 3, u" 1990", u" 1990", u"[c.  1990]", u"[ca.  1990]", u"[  1990]"},
        {u"[c.ca.1990]", 3, u"1990", u"1990", u"[c. 1990]", u"[ca. 1990]", u"[ 1990]"},
        {u"[c. 1990?]", 3, u" 1990?", u" 1990?", u"[c.  1990?]", u"[ca.  1990?]", u"[  1990?]"},
        {u"[1990]", 4, u"1990", u"1990", u"[1990]", u"[1990]", u"[1990]"},
        {u"[1990", 4, u"1990", u"1990", u"[1990]", u"[1990]", u"[1990]"},
        {u"forthcoming", 5, u"", u"", u"forthcoming", u"In press", u"In press"},
        {u"In press.", 5, u"", u"", u"forthcoming", u"In press", u"In press"},
        {u"in press", 5, u"", u"", u"forthcoming", u"In press", u"In press"},
        {u"Forthcoming.", 5, u"", u"", u"forthcoming", u"In press", u"In press"},
        {u"", 0, u"", u"", u"", u"", u""},
        {u"[", 4, u"", u"", u"[]", u"[]", u"[]"},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(testing::PrintToString(Text(c.text)));
        Year year = yearOf("mla");
        Text text(c.text);
        year.Parse(text, u"ignored");
        EXPECT_EQ(year.yearType, c.yearType);
        EXPECT_EQ(year.Year, c.year);
        EXPECT_EQ(text, c.remainder);
        EXPECT_EQ(year.toString(false, false), c.mla);
        EXPECT_EQ(year.toString(true, true), c.mla);
        EXPECT_EQ(yearOf("apa").formatStr(c.text), c.apa);
        EXPECT_EQ(yearOf("ama").formatStr(c.text), c.ama);
    }
}

TEST(Year, ReadsItsOwnOutput) {
    constexpr TextView kTexts[] = {u"1990",         u"1990a",         u"1990-1995", u"n.d.",    u"[1990?]",
                                   u"[1990-1995?]", u"[ca. 1990-95]", u"[1990]",    u"In press"};
    for (const std::string_view style : {"mla", "apa", "turabian"}) {
        for (const TextView text : kTexts) {
            const Text written = yearOf(style).formatStr(text);
            EXPECT_EQ(yearOf(style).formatStr(written), written);
        }
    }
}

TEST(Year, TakesTheYearOutOfADate) {
    struct Case {
        TextView text;
        TextView year;
    };
    // A range is no month, and today lends nothing.
    const auto kCases = rows<Case>(
        u"May 5, 1990 => 1990 || 5 May 1990 => 1990 || June 2010. => 2010 || 12/5/2010 => 2010 || "
        u"2010-05-12 => 2010 || 5/12/90 => 1990 || May 5, 2011 10:23 => 2011 || 1990-12 => 1990-12 || "
        u"5-12 => 5-12 || March 3 => March 3 || March 26 => March 26 || Monday, March 3 => Monday, March 3 || "
        u"March 3, 10 am => March 3, 10 am || March 3 10:45 => March 3 10:45 || 10:30 => 10:30 || 10:45 => 10:45 || "
        u"10:45:58 p.m => 10:45:58 p.m || 10.45 => 10.45 || Spring 2011 => Spring 2011 || "
        u"May\u2013June 2010 => May-June 2010");
    for (const Case& c : kCases) {
        SCOPED_TRACE(testing::PrintToString(Text(c.text)));
        Year year = yearOf("mla");
        Text text(c.text);
        year.Parse(text, {});
        EXPECT_EQ(year.Year, c.year);
        EXPECT_EQ(year.yearType, Year::kPlain);
    }
}

TEST(Year, IsYearLeavesTheElementAsItIs) {
    struct Case {
        TextView text;
        bool isYear;
    };
    constexpr Case kCases[] = {
        {u"1990", true},         {u" 1990 ", true},    {u"1990.", true},
        {u"1990a", true},        {u"1990-1995", true}, {u"1990-95", true},
        {u"[1990?]", true},      {u"[1990]", true},    {u"1990\u20131995", true},
        {u"[1990b]", true},      {u"[c. 1990]", true}, {u"", false},
        {u"   ", false},         {u"n.d.", false},     {u"forthcoming", false},
        {u"[", false},           {u"19", false},       {u"1990ab", false},
        {u"May 5, 1990", false}, {u"Paris", false},    {u"90", false},
        {u"-1990", false},       {u"10:30", false},    {u"12000", false},
    };
    Year year = yearOf("apa");
    year.yearType = Year::kCirca;
    year.Year = u"before";
    for (const Case& c : kCases) {
        SCOPED_TRACE(testing::PrintToString(Text(c.text)));
        EXPECT_EQ(year.isYear(c.text), c.isYear);
        EXPECT_EQ(year.yearType, Year::kCirca);
        EXPECT_EQ(year.Year, u"before");
    }
}

TEST(Year, FormatsWithEmptyOptionsBeforeAnyReset) {
    Year year;
    year.Initialize(nullptr);
    EXPECT_EQ(year.toString(false, false), u"");
    EXPECT_EQ(year.formatStr(u"1990-1995"), u"1990-1995");
    EXPECT_EQ(year.formatStr(u"n.d."), u"");
    EXPECT_EQ(year.formatStr(u"In press"), u"");
    EXPECT_EQ(year.formatStr(u"[ca. 1990]"), u"[  1990]");
    year.yearType = 7;
    EXPECT_EQ(year.toString(false, false), u" 1990");
}

class YearReports : public ReportingTest {};

TEST_F(YearReports, SupportsWhatTheStyleOffers) {
    struct Case {
        Year year;
        std::vector<bool> supports;
    };
    Year unset;
    unset.Initialize(nullptr);
    const Case kCases[] = {
        {unset, {true, true, false, false, false, false}},
        {yearOf("mla"), {true, true, true, true, true, true}},
        {yearOf("apa"), {true, true, false, true, true, true}},
        {yearOf("ama"), {true, true, false, false, false, true}},
    };
    for (const Case& c : kCases) {
        for (std::size_t code = 0; code < c.supports.size(); ++code) {
            EXPECT_EQ(c.year.Supports(static_cast<std::int32_t>(code)), c.supports[code]) << code;
        }
    }
    EXPECT_TRUE(service().errors().empty());
    for (const std::int32_t code : {-1, 6, INT32_MAX, INT32_MIN}) {
        EXPECT_FALSE(yearOf("mla").Supports(code));
        EXPECT_EQ(service().errors().size(), 1U);
        service().forget();
    }
}

TEST(Year, ResetKeepsWhatWasRead) {
    Year year = yearOf("mla");
    EXPECT_EQ(year.formatStr(u"In press"), u"forthcoming");
    year.Reset({true, true, false, u"", false, u"", false});
    EXPECT_EQ(year.toString(false, false), u"In press");
    EXPECT_FALSE(year.Supports(Year::kSupplied));
    EXPECT_FALSE(year.Supports(Year::kCirca));
}

TEST(Year, ACloneLacksTheForthcomingWordAndTheEnDash) {
    Year year = yearOf("turabian");
    year.formatStr(u"[ca. 1990-1995]");
    const auto clone = year.Clone();
    EXPECT_EQ(clone->toString(false, false), u"[ca.  1990-1995]");
    EXPECT_EQ(year.toString(false, false), u"[ca.  1990\u20131995]");
    for (std::int32_t code = 0; code <= 5; ++code) {
        EXPECT_EQ(clone->Supports(code), year.Supports(code));
    }
    EXPECT_EQ(clone->formatStr(u"n.d."), u"n.d.");
    EXPECT_EQ(clone->formatStr(u"forthcoming"), u"");
    EXPECT_EQ(year.Year, u" 1990-1995") << "the clone is not the year";
    clone->Reset({true, false, true, u"ca.", true, u"n.d.", true});
    EXPECT_EQ(clone->toString(false, false), u"forthcoming");
}

TEST_F(YearReports, WritesOnePlainPhrase) {
    Year year = yearOf("apa");
    year.formatStr(u"1990-1995");
    const auto sink = std::make_shared<RecordingSink>();
    year.ToFormattedString(sink, true, false);
    EXPECT_EQ(sink->phrases(), (std::vector<RecordingSink::Phrase>{{u"1990\u20131995", 0}}));
    EXPECT_TRUE(service().errors().empty());
}

}  // namespace
}  // namespace quorvel
