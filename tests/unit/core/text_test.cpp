#include "core/text.h"
#include "support/rows.h"

#include <gtest/gtest.h>

namespace quorvel {
namespace {

TEST(Text, CleanUpKeepsWhatAReaderSees) {
    struct Case {
        TextView raw;
        TextView clean;
    };
    const auto kCases = rows<Case>(
        u" =>  ||   1990   => 1990 || "
        u"Garc\u00EDa\u00A0M\u00E1rquez,\tGabriel\r\n => Garc\u00EDa M\u00E1rquez, Gabriel || "
        u"New\u2009\u3000 York => New York || \uFEFFCam\u00ADbridge\u200B => Cambridge || \u200B \u00AD =>  || "
        u"\u0646\u200C\u0647 => \u0646\u200C\u0647");
    for (const Case& c : kCases) {
        EXPECT_EQ(cleanUp(c.raw), c.clean);
    }
}

TEST(Text, SplitAndReplaceTakeEmptyArguments) {
    EXPECT_EQ(split(u"", u","), std::vector<Text>{u""});
    EXPECT_EQ(split(u"a||b||", u"||"), (std::vector<Text>{u"a", u"b", u""}));
    EXPECT_EQ(split(u"a,b", u""), std::vector<Text>{u"a,b"});
    EXPECT_EQ(join(split(u"Portland,OR", u","), u", "), u"Portland, OR");
    EXPECT_EQ(replaceAll(u"a--b---c", u"--", u"-"), u"a-b--c");
    EXPECT_EQ(replaceAll(u"abc", u"", u"x"), u"abc");
    EXPECT_EQ(before(u"1990-1995", u"-"), u"1990");
    EXPECT_EQ(before(u"1990", u"-"), u"1990");
}

TEST(Text, PrefixAndSuffixAreRemovedOnce) {
    Text text = u"[[1990]]";
    EXPECT_TRUE(removePrefix(text, u"["));
    EXPECT_TRUE(removeSuffix(text, u"]"));
    EXPECT_FALSE(removeSuffix(text, u"?]"));
    EXPECT_EQ(text, u"[1990]");
    EXPECT_FALSE(removePrefix(text, u"[1990]["));
}

}  // namespace
}  // namespace quorvel
