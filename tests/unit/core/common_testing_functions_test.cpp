#include "core/common_testing_functions.h"

#include <gtest/gtest.h>

#include "support/shown.h"

namespace quorvel {
namespace {

using namespace CommonTestingFunctions;

TEST(CommonTestingFunctions, WordsAreTested) {
    struct Case {
        bool (*test)(TextView);
        std::vector<TextView> pass, fail;
    };
    const Case kCases[] = {
        {isInitial,
         {u"J.", u"J.-P.", u"J.R.R.", u"j.", u"JP", u"J", u"J-P", u".", u"\u00C9", u"\u017D\u0141"},
         {u"", u"Jo.", u"Jos", u"JPR", u"J-P.R", u"Jp", u"j", u"\u00E9"}},
        {isRomanNumeral, {u"mcmxc", u"IIII", u"XiV"}, {u"", u"XIVa", u"I.", u"\u2160"}},
        {isCapitalized, {u"J", u"Jp", u"1990", u".", u"`a"}, {u"", u"a", u"z", u"{", u"\u00C9", u"\u00E9"}},
    };
    for (const Case& c : kCases) {
        for (const TextView word : c.pass) {
            EXPECT_TRUE(c.test(word)) << shown(word);
        }
        for (const TextView word : c.fail) {
            EXPECT_FALSE(c.test(word)) << shown(word);
        }
    }
}

TEST(CommonTestingFunctions, MonthsAreWrittenOut) {
    constexpr TextView kCases[][2] = {
        {u"ja", u"January"}, {u"FEB", u"February"}, {u"Ma", u"March"},       {u"a", u"April"},
        {u"m", u"May"},      {u"j", u"June"},       {u"Jn", u"June"},        {u"ju", u"July"},
        {u"jl", u"July"},    {u"au", u"August"},    {u"sept", u"September"}, {u"o", u"October"},
        {u"n", u"November"}, {u"d", u"December"},   {u"June", u"June"},      {u"f", u"f"},
        {u"s", u"s"},        {u"jan.", u"jan."},    {u"janu", u"janu"},      {u"\u00E4", u"\u00E4"},
        {u"", u""},
    };
    for (const auto& [word, month] : kCases) {
        EXPECT_EQ(convertToLongMonthNameIfNecessary(word), month) << shown(word);
    }
}

TEST(CommonTestingFunctions, ShortMonthsAreThoseOfMLA) {
    struct Case {
        TextView pattern;
        Text formatted;
        TextView result;
    };
    const Case kCases[] = {
        {u"d mmm yyyy", u"5 Jan 2010", u"5 Jan. 2010"},
        {u"MMM D", u"Sep 5", u"Sept. 5"},
        {u"mmm yyyy", u"May 2010", u"May 2010"},
        {u"mmm-mmm", u"Jun-Jul", u"June-July"},
        {u"mmm mmm mmm mmm mmm mmm mmm", u"Feb Mar Apr Aug Oct Nov Dec", u"Feb. Mar. Apr. Aug. Oct. Nov. Dec."},
        {u"mmm", u"jan JAN", u"jan JAN"},
        {u"mmmm d", u"Jan 5", u"Jan 5"},
    };
    for (const Case& c : kCases) {
        Text formatted = c.formatted;
        FormatForMLA(formatted, c.pattern);
        EXPECT_EQ(formatted, c.result) << shown(c.pattern);
    }
}

TEST(CommonTestingFunctions, DatesAreWrittenByThePattern) {
    struct Case {
        TextView text;
        Text pattern;
        TextView result, patternAfter;
    };
    const Case kCases[] = {
        {u"", u"mmmm d, yyyy", u"", u"mmmm d, yyyy"},
        {u"5 may 1990", u"mmmm d, yyyy", u"May 5, 1990", u"mmmm d, yyyy"},
        {u"Sept 5, 2010", u"d mmm yyyy", u"5 Sept. 2010", u"d mmm yyyy"},
        {u"June 5, 2010", u"mmm d", u"June 5", u"mmm d"},
        // Two words are month and year, whose pattern loses its day; a time keeps it.
        {u"June 2010", u"mmmm d, yyyy", u"June, 2010", u"mmmm, yyyy"},
        {u"jan 2010", u"D MMM yyyy", u"Jan. 2010", u"MMM yyyy"},
        {u"early 10:30", u"mmmm d, yyyy", u"early 10:30", u"mmmm d, yyyy"},
        // What is no date keeps its words but for the abbreviated months.
        {u"Sep issue", u"yyyy mm d", u"September issue", u"yyyy mm"},
        {u"no date at all", u"yyyy", u"November date at all", u"yyyy"},
        {u"n.d.", u"yyyy", u"n.d.", u"yyyy"},
    };
    for (const Case& c : kCases) {
        Text pattern = c.pattern;
        EXPECT_EQ(FormatDate(c.text, pattern), c.result) << shown(c.text);
        EXPECT_EQ(pattern, c.patternAfter) << shown(c.text);
    }
}

}  // namespace
}  // namespace quorvel
