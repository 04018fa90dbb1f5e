#include "elements/place.h"

#include <gtest/gtest.h>

#include "support/recording_service.h"
#include "support/recording_sink.h"

namespace quorvel {
namespace {

using Place = OutputTemplatePlace;

/// Every variant is offered.
Place placeWith(bool expandAbbreviations, bool repeatLocation) {
    Place place;
    place.Initialize(nullptr);
    place.Reset({true, true, true, expandAbbreviations, repeatLocation});
    return place;
}

TEST(Place, ReadsAndWritesEachVariant) {
    struct Case {
        TextView text;
        std::int32_t placeType;
        TextView place;
        TextView written;
        TextView writtenPlain;
    };
    constexpr Case kCases[] = {
        {u"Paris", 0, u"Paris", u"Paris", u"Paris"},
        {u" New\u00A0York . ", 0, u"New York ", u"New York ", u"New York "},
        {u"Portland, OR.", 0, u"Portland, OR", u"Portland, OR", u"Portland, OR"},
        // Without its last full stop, deliberately.
        {u"Washington, D.C.", 0, u"Washington, D.C", u"Washington, D.C", u"Washington, D.C"},
        // Not offered, the place that was never there is empty.
        {u"n.p.", 1, u"", u"n.p.", u""},
        {u"n.p", 0, u"n.p", u"n.p", u"n.p"},
        {u"N.p.", 0, u"N.p", u"N.p", u"N.p"},
        {u"[Paris?]", 2, u"Paris", u"[Paris?]", u"Paris"},
        {u"[Paris?].", 2, u"Paris", u"[Paris?]", u"Paris"},
        {u"[Paris]", 3, u"Paris", u"[Paris]", u"Paris"},
        {u"[Paris", 3, u"Paris", u"[Paris]", u"Paris"},
        {u"[Paris?", 3, u"Paris?", u"[Paris?]", u"Paris?"},
        {u"Paris?]", 0, u"Paris?]", u"Paris?]", u"Paris?]"},
        {u"", 0, u"", u"", u""},
        {u".", 0, u"", u"", u""},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(testing::PrintToString(Text(c.text)));
        Place place = placeWith(false, true);
        Text text(c.text);
        place.Parse(text, u"ignored");
        EXPECT_EQ(place.placeType, c.placeType);
        EXPECT_EQ(place.Place, c.place);
        EXPECT_EQ(text, c.place);
        EXPECT_EQ(place.toString(false, false, {}), c.written);
        EXPECT_EQ(place.toString(true, true, {}), c.written);
        place.Reset({false, false, false, false, true});
        EXPECT_EQ(place.toString(false, false, {}), c.writtenPlain);
    }
}

TEST(Place, WritesTheStateAsTheStyleAsks) {
    struct Case {
        TextView text;
        bool expand;
        bool repeat;
        TextView publisher;
        TextView written;
    };
    constexpr Case kCases[] = {
        {u"Portland, OR", true, true, u"", u"Portland, Oregon"},
        {u"Portland,OR", true, true, u"", u"Portland, Oregon"},
        {u"Portland,OR", false, true, u"", u"Portland,OR"},
        {u"[Portland, OR?]", true, true, u"", u"[Portland, Oregon?]"},
        {u"Salem, OR, USA", true, true, u"", u"Salem, Oregon, USA"},
        // Spelled as the table has always spelled them.
        {u"Denver, CO", true, true, u"", u"Denver, Colorodo"},
        {u"Dover, DE", true, true, u"", u"Dover, Deleware"},
        {u"Concord, NH", true, true, u"", u"Concord, New Hamshire"},
        {u"Pierre, SD", true, true, u"", u"Pierre, South Daktoa"},
        {u"Norfolk, VA", true, true, u"", u"Norfolk, Virgina"},
        {u"Boston, Mass", true, true, u"", u"Boston, Mass"},
        {u"Boston, ma", true, true, u"", u"Boston, ma"},
        {u"Paris, FR", true, true, u"", u"Paris, FR"},
        {u"OR", true, true, u"", u"OR"},
        {u"Portland, ", true, false, u"Portland State", u"Portland,"},
        {u"Portland, , OR", true, false, u"Some Press", u"Portland, , OR"},
        // The publisher's name has the state already.
        {u"Lincoln, Nebraska", false, false, u"University of Nebraska Press", u"Lincoln"},
        {u"Lincoln,Nebraska", true, false, u"University of Nebraska Press", u"Lincoln"},
        {u"[Lincoln, Nebraska]", false, false, u"University of Nebraska Press", u"[Lincoln]"},
        {u"Lincoln, Nebraska", false, true, u"University of Nebraska Press", u"Lincoln, Nebraska"},
        {u"Lincoln, Nebraska", false, false, u"Nebraska Press", u"Lincoln, Nebraska"},
        {u"Lincoln, Nebraska", false, false, u"University of nebraska Press", u"Lincoln, Nebraska"},
        // A state that was written out is not looked for.
        {u"Lincoln, NE", true, false, u"Press of NE", u"Lincoln, Nebraska"},
        {u"Lincoln, NE", false, false, u"Press of NE", u"Lincoln"},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(testing::PrintToString(Text(c.text)));
        EXPECT_EQ(placeWith(c.expand, c.repeat).formatStr(c.text, c.publisher), c.written);
    }
}

TEST(Place, ListsTheStates) {
    const Place place = placeWith(true, true);
    const std::vector<Text> abbreviations = place.DefaultAbbreviations();
    const std::vector<Text> states = place.States();
    ASSERT_EQ(abbreviations.size(), 56U);
    ASSERT_EQ(states.size(), 56U);
    EXPECT_EQ(abbreviations[6], u"CZ");
    EXPECT_EQ(states[6], u"Canal Zone");
    EXPECT_EQ(abbreviations[55], u"WY");
    EXPECT_EQ(states[55], u"Wyoming");
    for (std::size_t i = 0; i < states.size(); ++i) {
        Place any = placeWith(true, true);
        EXPECT_EQ(any.formatStr(u"City, " + abbreviations[i], {}), u"City, " + states[i]);
    }
}

TEST(Place, IsPlaceLeavesTheElementAsItIs) {
    struct Case {
        TextView text;
        bool isPlace;
    };
    // Only a remainder that reads as a year counts, deliberately.
    constexpr Case kCases[] = {
        {u"n.p.", true},   {u"1990", true},      {u"[1990?]", true}, {u"1990-1995", true}, {u"[]", true},
        {u"Paris", false}, {u"[Paris?]", false}, {u"", false},       {u"  ", false},       {u"\u00A0", false},
    };
    Place place = placeWith(false, false);
    place.placeType = Place::kSupplied;
    place.Place = u"before";
    for (const Case& c : kCases) {
        SCOPED_TRACE(testing::PrintToString(Text(c.text)));
        EXPECT_EQ(place.isPlace(c.text), c.isPlace);
        EXPECT_EQ(place.placeType, Place::kSupplied);
        EXPECT_EQ(place.Place, u"before");
    }
}

TEST(Place, ACloneHasTheOptionsAndNoPlace) {
    Place place = placeWith(true, false);
    place.Reset({true, false, true, true, false});
    place.formatStr(u"[Portland, OR]", {});
    const auto clone = place.Clone();
    EXPECT_EQ(clone->placeType, Place::kPlain);
    EXPECT_EQ(clone->toString(false, false, {}), u"");
    for (std::int32_t code = 0; code <= 3; ++code) {
        EXPECT_EQ(clone->Supports(code), place.Supports(code));
    }
    EXPECT_EQ(clone->formatStr(u"[Portland, OR]", {}), u"[Portland, Oregon]");
    EXPECT_EQ(clone->formatStr(u"Lincoln, Nebraska", u"University of Nebraska Press"), u"Lincoln");
    EXPECT_EQ(place.Place, u"Portland, OR");
}

class PlaceReports : public ReportingTest {};

TEST_F(PlaceReports, FormatsPlainPlacesBeforeAnyReset) {
    Place place;
    place.Initialize(nullptr);
    EXPECT_TRUE(place.Supports(Place::kPlain));
    EXPECT_EQ(place.formatStr(u"[Portland, OR?]", {}), u"Portland, OR");
    EXPECT_EQ(place.formatStr(u"n.p.", {}), u"");
    place.placeType = 9;
    EXPECT_EQ(place.toString(false, false, {}), u"");
    EXPECT_TRUE(service().errors().empty());
    for (const std::int32_t code : {-1, 4}) {
        EXPECT_FALSE(place.Supports(code));
        EXPECT_EQ(service().errors().size(), 1U);
        service().forget();
    }
}

TEST_F(PlaceReports, WritesOnePlainPhraseForNoParticularPublisher) {
    Place place = placeWith(false, false);
    place.formatStr(u"[Lincoln, Nebraska]", {});
    const auto sink = std::make_shared<RecordingSink>();
    place.ToFormattedString(sink, false, true);
    EXPECT_EQ(sink->phrases(), (std::vector<RecordingSink::Phrase>{{u"[Lincoln, Nebraska]", 0}}));
    EXPECT_TRUE(service().errors().empty());
}

}  // namespace
}  // namespace quorvel
