#include "core/common_testing_functions.h"

#include <gtest/gtest.h>

#include "support/shown.h"

namespace quorvel {
namespace {

using namespace CommonTestingFunctions;

TEST(CommonTestingFunctions, WordsAreTested) {
    struct Case {
        TextView word;
        bool initial;
        bool roman;
        bool capitalized;
    };
    constexpr Case kCases[] = {
        {u"", false, false, false},
        {u"J.", true, false, true},
        {u"J.-P.", true, false, true},
        {u"J.R.R.", true, false, true},
        {u"j.", true, false, false},
        {u"JP", true, false, true},
        {u"J-P", true, false, true},
        {u"J", true, false, true},
        {u"Jo.", false, false, true},
        {u"Jos", false, false, true},
        {u"JPR", false, false, true},
        {u"J-P.R", false, false, true},
        {u"Jp", false, false, true},
        {u".", true, false, true},
        {u"\u00C9", true, false, false},
        {u"\u00E9", false, false, false},
        {u"\u017D\u0141", true, false, false},
        {u"mcmxc", false, true, false},
        {u"IIII", false, true, true},
        {u"XIVa", false, false, true},
        {u"I.", true, false, true},
        {u"`a", false, false, true},
        {u"a", false, false, false},
        {u"{", true, false, false},
        {u"1990", false, false, true},
    };
    for (const Case& c : kCases) {
        EXPECT_EQ(isInitial(c.word), c.initial) << shown(c.word);
        EXPECT_EQ(isRomanNumeral(c.word), c.roman) << shown(c.word);
        EXPECT_EQ(isCapitalized(c.word), c.capitalized) << shown(c.word);
    }
}

TEST(CommonTestingFunctions, MonthsAreWrittenOut) {
    struct Case {
        TextView month;
        std::vector<TextView> keys;
    };
    const Case kCases[] = {
        {u"January", {u"ja", u"jan", u"JAN"}},
        {u"February", {u"fe", u"feb"}},
        {u"March", {u"ma", u"mar"}},
        {u"April", {u"a", u"ap", u"apr", u"A"}},
        {u"May", {u"m", u"May"}},
        {u"June", {u"j", u"jn", u"jun", u"June"}},
        {u"July", {u"jl", u"ju", u"jul", u"July"}},
        {u"August", {u"au", u"aug"}},
        {u"September", {u"se", u"sep", u"sept", u"Sept"}},
        {u"October", {u"o", u"oc", u"oct"}},
        {u"November", {u"n", u"no", u"nov"}},
        {u"December", {u"d", u"de", u"dec"}},
    };
    for (const Case& c : kCases) {
        for (const TextView key : c.keys) {
            EXPECT_EQ(convertToLongMonthNameIfNecessary(key), c.month) << shown(key);
        }
    }
    for (const TextView other : {u"", u"f", u"s", u"jan.", u"janu", u"2010", u"\u00E4"}) {
        EXPECT_EQ(convertToLongMonthNameIfNecessary(other), other);
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
        {u"Mmmm mmm", u"Jan 5", u"Jan 5"},
        {u"mm/d", u"Jan/5", u"Jan/5"},
        {u"", u"Jan", u"Jan"},
    };
    for (const Case& c : kCases) {
        Text formatted = c.formatted;
        FormatForMLA(formatted, c.pattern);
        EXPECT_EQ(formatted, c.result) << shown(c.pattern);
    }
}

}  // namespace
}  // namespace quorvel
