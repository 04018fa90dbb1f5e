#include "elements/publisher.h"

#include "support/element.h"
#include "support/recording_service.h"
#include "support/rows.h"

namespace quorvel {
namespace {

using Publisher = OutputTemplatePublisher;

struct Options {
    bool usePublisherUnknown = false;
    bool shorten = false;
    bool removeAbbreviations = false;
};

void reset(Publisher& publisher, const Options& options) {
    publisher.Reset({true, true, options.usePublisherUnknown, options.shorten, options.removeAbbreviations});
}

Publisher publisherWith(const Options& options) {
    auto publisher = elementWith<Publisher>(PublisherOptions());
    reset(publisher, options);
    return publisher;
}

TEST(Publisher, ReadsThePartsOfAName) {
    struct Case {
        TextView text;
        TextView imprint;
        TextView publisher;
        TextView place;
        TextView copublisher;
        TextView written;
    };
    constexpr Case kCases[] = {
        {u"Penguin", u"", u"Penguin", u"", u"", u"Penguin"},
        {u" Oxford\u00A0University  Press ", u"", u"Oxford University Press", u"", u"", u"Oxford University Press"},
        {u"Penguin-Viking", u"Penguin", u"Viking", u"", u"", u"Penguin-Viking"},
        {u"McGraw-Hill", u"McGraw", u"Hill", u"", u"", u"McGraw-Hill"},
        {u"A-B-C", u"A", u"B-C", u"", u"", u"A-B-C"},
        {u"Norton-", u"", u"Norton-", u"", u"", u"Norton-"},
        // An en dash joins no imprint.
        {u"Penguin\u2013Viking", u"", u"Penguin\u2013Viking", u"", u"", u"Penguin\u2013Viking"},
        {u"Norton; London: Faber", u"", u"Norton", u"London", u"Faber", u"Norton; London: Faber"},
        {u"Anchor-Doubleday ;London :Faber-Gwyer", u"Anchor", u"Doubleday", u"London", u"Faber-Gwyer",
         u"Anchor-Doubleday; London: Faber-Gwyer"},
        {u"Norton; Faber", u"", u"Norton", u"", u"Faber", u"Norton; Faber"},
        {u"Norton; London: ", u"", u"Norton", u"London", u"", u"Norton; London"},
        {u"Norton; A: B; C: D", u"", u"Norton", u"A", u"B; C: D", u"Norton; A: B; C: D"},
        {u"Norton;", u"", u"Norton;", u"", u"", u"Norton;"},
        {u"London: Faber", u"", u"London: Faber", u"", u"", u"London: Faber"},
        {u"N.P.", u"", u"N.P.", u"", u"", u"N.P."},
        {u"author", u"", u"author", u"", u"", u"author"},
        {u"", u"", u"", u"", u"", u""},
    };
    Publisher publisher = publisherWith({});
    for (const Case& c : kCases) {
        SCOPED_TRACE(shown(c.text));
        // Nothing of the text before remains.
        publisher.PublisherType = Publisher::kAuthor;
        publisher.publisher(u"before");
        publisher.Imprint(u"before");
        publisher.CoPublisher(u"before");
        publisher.copublisherPlace = u"before";
        Text text(c.text);
        publisher.Parse(text, u"ignored");
        EXPECT_EQ(publisher.PublisherType, Publisher::kNamed);
        EXPECT_EQ(text, c.publisher);
        EXPECT_EQ(publisher.Imprint(), c.imprint);
        EXPECT_EQ(publisher.publisher(), c.publisher);
        EXPECT_EQ(publisher.copublisherPlace, c.place);
        EXPECT_EQ(publisher.CoPublisher(), c.copublisher);
        EXPECT_EQ(publisher.toString(false, false), c.written);
        EXPECT_EQ(publisher.toString(true, true), c.written);
    }
}

TEST(Publisher, KnowsTheSpecialKinds) {
    struct Case {
        TextView text;
        std::int32_t kind;
        TextView written;
        TextView writtenInFull;
    };
    constexpr Case kCases[] = {
        {u"Publisher unknown", 1, u"n.p.", u"Publisher unknown"},
        {u" n.p. ", 1, u"n.p.", u"Publisher unknown"},
        {u"N.p.", 1, u"n.p.", u"Publisher unknown"},
        {u"Manuscript in preparation", 2, u"Manuscript in preparation", u"Manuscript in preparation"},
        {u"Manuscript submitted for publication", 3, u"Manuscript submitted for publication",
         u"Manuscript submitted for publication"},
        {u"forthcoming", 3, u"Manuscript submitted for publication", u"Manuscript submitted for publication"},
        {u"Author", 4, u"Author", u"Author"},
        {u"by the author", 4, u"Author", u"Author"},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(shown(c.text));
        Publisher publisher = publisherWith({false, true, true});
        formatted(publisher, u"Anchor-Doubleday; London: Faber");
        EXPECT_EQ(formatted(publisher, c.text), c.written);
        EXPECT_EQ(publisher.PublisherType, c.kind);
        EXPECT_EQ(publisher.publisher() + publisher.Imprint() + publisher.CoPublisher() + publisher.copublisherPlace,
                  u"");
        reset(publisher, {true, true, true});
        EXPECT_EQ(publisher.toString(true, true), c.writtenInFull);
    }
}

TEST(Publisher, ForthcomingBesideAYearIsNoKind) {
    Publisher publisher = publisherWith({});
    Text text = u"forthcoming";
    publisher.Parse(text, u"1999");
    EXPECT_EQ(publisher.PublisherType, Publisher::kNamed);
    EXPECT_EQ(publisher.toString(false, false), u"forthcoming");
}

TEST(Publisher, ShortensAndExpandsNames) {
    struct Case {
        TextView text;
        TextView full;
        TextView shortened;
    };
    constexpr Case kCases[] = {
        {u"Oxford University Press", u"Oxford University Press", u"Oxford UP"},
        {u"University of Chicago Press", u"University of Chicago Press", u"U of Chicago P"},
        {u"University Press of Kansas", u"University Press of Kansas", u"UP of Kansas"},
        {u"Harvard University", u"Harvard University", u"Harvard U"},
        {u"The University of Iowa Press", u"The University of Iowa Press", u"The U of Iowa P"},
        // A name that is nothing but the word, and a longer word, stay.
        {u"Press", u"Press", u"Press"},
        {u"University Press", u"University Press", u"U P"},
        {u"Universitypress Pressburg", u"Universitypress Pressburg", u"Universitypress Pressburg"},
        {u"MIT press", u"MIT press", u"MIT press"},
        // One occurrence a word.
        {u"Press of the Press Press", u"Press of the Press Press", u"P of the Press Press"},
        {u"A Press B Press C", u"A Press B Press C", u"A P B Press C"},
        {u"Belknap Press-Harvard University Press; London: Oxford University Press",
         u"Belknap Press-Harvard University Press; London: Oxford University Press",
         u"Belknap P-Harvard UP; London: Oxford UP"},
        {u"Oxford UP", u"Oxford University Press", u"Oxford UP"},
        {u"U of Chicago P", u"University of Chicago Press", u"U of Chicago P"},
        {u"Belknap P-Harvard UP; London: Oxford UP",
         u"Belknap Press-Harvard University Press; London: Oxford University Press",
         u"Belknap P-Harvard UP; London: Oxford UP"},
        {u"UP", u"UP", u"UP"},
        {u"MIT P", u"MIT Press", u"MIT P"},
        {u"Beacon P; London: Getty P", u"Beacon Press; London: Getty Press", u"Beacon P; London: Getty P"},
        // An initial is no press.
        {u"J. P", u"J. P", u"J. P"},
        {u"Putnam, P", u"Putnam, P", u"Putnam, P"},
        {u"P Blakiston", u"P Blakiston", u"P Blakiston"},
        {u"UPS Group", u"UPS Group", u"UPS Group"},
    };
    Publisher publisher = publisherWith({});
    for (const Case& c : kCases) {
        reset(publisher, {});
        EXPECT_EQ(formatted(publisher, c.text), c.full) << shown(c.text);
        reset(publisher, {false, true, false});
        EXPECT_EQ(publisher.toString(false, false), c.shortened) << shown(c.text);
        EXPECT_EQ(formatted(publisher, c.text), c.shortened) << shown(c.text);
    }
}

TEST(Publisher, RemovesAbbreviationsAsTheyStand) {
    struct Case {
        TextView text;
        TextView written;
    };
    // The blanks and commas around what was removed stay, deliberately.
    const auto kCases = rows<Case>(
        u"The Free Press =>  Free Press || Theatre Arts Books => atre Arts Books || "
        u"the Free Press => the Free Press || Random House, Inc. => Random House,  || "
        u"Sage Publications Ltd. => Sage Publications  || Gallimard S.A. => Gallimard  || "
        u"Little, Brown & Co. => Little, Brown  || Cengage Publishing Co. => Cengage  || "
        u"Ford Motor Co. => Ford Motor  || Example Co.Inc. => Example  || Example Inc.Co. => Example Inc. || "
        u"Example Inc => Example Inc || "
        u"Dell Inc.-Random House, Inc.; London: The Ace Co. => Dell -Random House, ; London:  Ace ");
    Publisher publisher = publisherWith({false, false, true});
    for (const Case& c : kCases) {
        EXPECT_EQ(formatted(publisher, c.text), c.written) << shown(c.text);
        // The name itself stays whole.
        reset(publisher, {});
        EXPECT_EQ(publisher.toString(false, false), c.text) << shown(c.text);
        reset(publisher, {false, false, true});
    }
}

TEST(Publisher, ACloneHasOptionsAndValues) {
    Publisher publisher = publisherWith({true, true, true});
    publisher.Reset({false, true, true, true, true});
    formatted(publisher, u"Anchor-The Yale University Press Ltd.; London: Oxford University Press");
    const auto clone = publisher.Clone(std::make_shared<RecordingSink>());
    EXPECT_EQ(clone->toString(false, false), u"Anchor- Yale UP ; London: Oxford UP");
    EXPECT_EQ(clone->toString(false, false), publisher.toString(false, false));
    EXPECT_FALSE(clone->supportCoPublisher());
    EXPECT_TRUE(clone->SupportAdvancedOptions());
    EXPECT_EQ(formatted(*clone, u"n.p."), u"Publisher unknown");
    EXPECT_EQ(clone->Clone(std::make_shared<RecordingSink>())->PublisherType, Publisher::kUnknown);
    EXPECT_EQ(publisher.publisher(), u"The Yale University Press Ltd.");
    publisher.Reset({true, false, false, false, false});
    EXPECT_TRUE(publisher.supportCoPublisher());
    EXPECT_FALSE(publisher.SupportAdvancedOptions());
}

class PublisherReports : public ReportingTest {};

TEST_F(PublisherReports, FormatsWithoutAnyReset) {
    Publisher publisher;
    publisher.Initialize(std::make_shared<RecordingSink>());
    EXPECT_EQ(publisher.toString(false, false), u"");
    EXPECT_EQ(formatted(publisher, u"The Free University Press"), u"The Free University Press");
    EXPECT_EQ(formatted(publisher, u"N.p."), u"n.p.");
    publisher.PublisherType = 5;
    publisher.publisher(u"Norton");
    EXPECT_EQ(publisher.toString(false, false), u"Norton");
    publisher.PublisherType = -1;
    EXPECT_EQ(publisher.toString(false, false), u"Norton");
    EXPECT_TRUE(service().errors().empty());
}

}  // namespace
}  // namespace quorvel
