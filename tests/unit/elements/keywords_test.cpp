#include "elements/keywords.h"

#include <gtest/gtest.h>

#include "support/recording_service.h"
#include "support/recording_sink.h"
#include "support/shown.h"

namespace quorvel {
namespace {

using Keywords = OutputTemplateKeywords;

Keywords keywords() {
    Keywords element;
    element.Initialize(nullptr);
    return element;
}

TEST(Keywords, ReadsFreeTextAndListsOfTheUser) {
    struct Case {
        TextView text;
        TextView freeText;
        TextView keptOrder;
    };
    constexpr Case kCases[] = {
        {u"The Cat,the cat,CAT", u"cat", u"cat"},
        {u"zebra,apple", u"apple,zebra", u"zebra,apple"},
        {u"zebra, apple,zebra , ,apple", u"apple,zebra", u"zebra,apple"},
        // Two letters are enough in a list of the user's, one never is.
        {u"ox,x,$,7", u"", u"ox"},
        {u"e.g. colour;", u"colour,e.g", u"e.g,colour"},
        {u"\"quoted\" quoted", u"quoted", u"quoted"},
        {u"half-life.) well-known\u201D, caf\u00E9\u2026 na\u00EFve\u00BB",
         u"caf\u00E9,half-life,na\u00EFve,well-known", u"half-life,well-known\u201D,caf\u00E9,na\u00EFve"},
        {u"rock\"n\" roll", u"rock\"n,roll", u"rock\"n\",roll"},
        {u"a;b c\\d semi;colon back\\slash", u"", u""},
        // Only ASCII letters begin a keyword, and only small ones.
        {u"\u00E9tude \u00C9tude 2nd Zebra Zebras `az {az az", u"", u"az"},
        {u"line\nbreak\ttab\u00A0space", u"break,line,space,tab", u"line,break,tab,space"},
        {u"dna\u4E2D\u3002 h2o\u00B2", u"dna\u4E2D,h2o\u00B2", u"dna\u4E2D,h2o\u00B2"},
        // A mixed-case word sorts by its characters.
        {u"iPod,iPad,ipad,ion", u"iPad,iPod,ion,ipad", u"iPod,iPad,ipad,ion"},
        {u"my quorveldatabase", u"quorveldatabase", u"my quorveldatabase"},
        {u"my my quorveldatabase rules,my quorveldatabase,my", u"quorveldatabase,rules", u"my quorveldatabase,rules"},
        {u"my,quorveldatabase,My quorveldatabase.", u"quorveldatabase", u"quorveldatabase"},
        {u"about your a b c 1 with", u"", u""},
        {u"", u"", u""},
        {u" , ,", u"", u""},
    };
    Keywords element = keywords();
    for (const Case& c : kCases) {
        element.Parse(c.text, {});
        EXPECT_EQ(element.toString(false, false), c.freeText) << shown(c.text);
        EXPECT_EQ(element.hasWords(), !c.freeText.empty()) << shown(c.text);
        element.Parse(c.text, u"keep_order");
        EXPECT_EQ(element.toString(true, true), c.freeText) << shown(c.text);
        element.Parse(c.text, u"KEEP_ORDER");
        EXPECT_EQ(element.toString(false, true), c.keptOrder) << shown(c.text);
        EXPECT_EQ(element.hasWords(), !c.keptOrder.empty()) << shown(c.text);
    }
}

TEST(Keywords, TellsWhatAKeywordIs) {
    struct Case {
        TextView word;
        bool valid;
        bool exists;
    };
    constexpr Case kCases[] = {
        {u"cat", true, false},
        {u"ox", true, false},
        {u"the", true, true},
        {u"about", true, true},
        {u"your", true, true},
        {u"$", false, true},
        {u"x", false, true},
        {u"", false, true},
        {u"10", false, false},
        {u"Cat", false, false},
        {u"cat dog", false, false},
        {u"cat;", false, false},
        {u"c\\at", false, false},
        {u"`at", false, false},
        {u"{at", false, false},
        {u"aa", true, false},
        {u"zz", true, false},
        // The last key of the table is one text.
        {u"a b c d e f g h i j k l m n o p q r s t u v w x y z", false, true},
        {u"my quorveldatabase", true, false},
    };
    const Keywords element = keywords();
    for (const Case& c : kCases) {
        EXPECT_EQ(element.validKeyword(c.word), c.valid) << shown(c.word);
        EXPECT_EQ(element.exists(c.word), c.exists) << shown(c.word);
    }
}

TEST(Keywords, AcceptsAWordOnce) {
    Keywords element = keywords();
    EXPECT_FALSE(element.Add(u"ox", true));
    EXPECT_TRUE(element.Add(u"ox", false));
    EXPECT_FALSE(element.Add(u"ox", false));
    EXPECT_FALSE(element.Add(u"the", false));
    EXPECT_FALSE(element.Add(u"Cat", false));
    EXPECT_TRUE(element.Add(u"cat", true));
    // Words that were added are known, but only those of a text are written.
    EXPECT_FALSE(element.hasWords());
    EXPECT_EQ(element.toString(false, false), u"");
    element.Reset();
    EXPECT_TRUE(element.Add(u"cat", true));
    element.Parse(u"cat", {});
    EXPECT_TRUE(element.hasWords());
    element.Parse({}, {});
    EXPECT_FALSE(element.hasWords());
}

class KeywordsReports : public ReportingTest {};

TEST_F(KeywordsReports, WritesOnePhrase) {
    Keywords element = keywords();
    element.Parse(u"zebra,apple", {});
    const auto sink = std::make_shared<RecordingSink>();
    element.ToFormattedString(sink, true, false);
    EXPECT_EQ(sink->phrases(), (std::vector<RecordingSink::Phrase>{{u"apple,zebra", 0}}));
    EXPECT_TRUE(service().errors().empty());
}

}  // namespace
}  // namespace quorvel
