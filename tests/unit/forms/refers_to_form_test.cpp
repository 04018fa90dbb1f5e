#include <gtest/gtest.h>

#include "support/shown_form.h"

namespace quorvel {
namespace {

using forms::Value;

constexpr std::int16_t kRefersTo = 12;
constexpr std::int16_t kValues = 8;

constexpr const char16_t* kMembers[] = {u"value(0)", u"value(1)", u"value(2)", u"value(3)",
                                        u"value(4)", u"value(5)", u"value(6)", u"value(7)"};

constexpr TextView kRows[] = {
    u"Regular,,,,,,,,",
    u"Abstract of,Author,Title,Journal,Year,Volume,Number,Page Number,",
    u"Correction,Journal,Year,Volume,Number,Page Number,,,",
    u"Serial article,Part 1: Volume,Number,Year,Page Number,Part 2: Volume,Number,Year,Page Number",
    u"Series,,,,,,,,",
    u"Reprint,Title,Year,Editor,Volume,Place,Publisher,Page Number,Original Pub. Year",
};
enum Kind : std::int16_t { kRegular, kAbstractOf, kCorrection, kSerialArticle, kSeries, kReprint, kOther };

/// @param values with "|" between them
std::shared_ptr<RecordingObject> statement(TextView type, TextView values) {
    auto element = std::make_shared<RecordingObject>();
    std::vector<Text> texts = split(values, u"|");
    texts.resize(kValues);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        element->has(kMembers[i], Value(texts[i]));
    }
    element->has(u"RefersToType", Value(type));
    element->does(u"supportedTypes", [](forms::LateObject::Arguments) {
        std::vector<Text> captions;
        for (const TextView row : kRows) {
            captions.emplace_back(before(row, u","));
        }
        return Value(captions);
    });
    element->does(u"settings", [](forms::LateObject::Arguments arguments) {
        return Value(kRows[static_cast<std::size_t>(arguments[0].asNumber())]);
    });
    element->does(u"TitleTypeToCaption", [](forms::LateObject::Arguments arguments) {
        const Text stored = arguments[0].asText();
        return Value(stored == u"Refers to" ? Text(u"Regular") : stored == u"Abstract" ? Text(u"Abstract of") : stored);
    });
    element->does(u"Parse", [](forms::LateObject::Arguments) { return Value(); });
    element->does(u"toString",
                  [self = element.get()](forms::LateObject::Arguments) { return self->valueOf(u"value(0)"); });
    return element;
}

/// What the element has, with "|" between the values, without the empty ones at the end.
std::string values(const ShownForm& shown) {
    Text all;
    for (const char16_t* const member : kMembers) {
        all += shown.element->valueOf(member).asText() + u"|";
    }
    all.resize(all.find_last_not_of(u'|') + 1);
    return test::utf8Of(all);
}

std::string labels(const ShownForm& shown) {
    std::string all;
    for (std::int16_t i = 0; i < kValues; ++i) {
        EXPECT_EQ(shown.at({u"Label", i}).isShown(), shown.at({u"Textbox", i}).isShown());
        all += shown.at({u"Label", i}).isShown() ? test::utf8Of(shown.at({u"Label", i}).caption()) + "," : "";
    }
    return all;
}

void select(const ShownForm& shown, std::int16_t kind) {
    shown.at({u"OptionButton", kind}).click();
}

TEST(RefersToForm, AStatementComesBackAsItsKind) {
    struct Case {
        TextView type;
        TextView values;
        std::int16_t option;
        TextView caption;
    };
    const Case kCases[] = {
        {u"Refers to", u"as it stands", kRegular, u"Regular"},
        {u"Abstract", u"Lee K|Title|JAMA|2004|291|20|2432", kAbstractOf, u"Abstract of"},
        {u"Serial article", u"52|4|1981|688-705|53|1|1981|164-80", kSerialArticle, u"Serial article"},
        {u"Series", u"3rd", kSeries, u"Series"},
        {u"Series", u"o.s.", kSeries, u"Series"},
        {u"Series", u"American", kSeries, u"Series"},
        // The style does not offer it: it has an option of its own and keeps its values.
        {u"Retracted in", u"Lancet|2010", kOther, u"Retracted in"},
    };
    for (const Case& row : kCases) {
        const ShownForm shown(kRefersTo, statement(row.type, row.values), u"text");
        EXPECT_TRUE(shown.at({u"OptionButton", row.option}).value()) << test::utf8Of(row.type);
        EXPECT_EQ(shown.at({u"OptionButton", row.option}).caption(), row.caption);
        EXPECT_EQ(shown.at({u"OptionButton", kOther}).isShown(), row.option == kOther);
        EXPECT_EQ(shown.at(u"NumSeries").isShown(), row.option == kSeries);
        // Looking at another kind changes nothing.
        select(shown, kCorrection);
        select(shown, row.option);
        EXPECT_EQ(values(shown), test::utf8Of(row.values));
        shown.clickOk();
        EXPECT_TRUE(told(shown).front().ends_with(", " + test::utf8Of(row.type) + ")")) << told(shown).front();
    }
}

TEST(RefersToForm, BoxesAreThoseOfTheKindAndKeepWhatItShares) {
    const ShownForm shown(kRefersTo, statement(u"Abstract", u"Lee K|Title|JAMA|2004|291|20|2432"), u"text");
    EXPECT_EQ(labels(shown), "Author,Title,Journal,Year,Volume,Number,Page Number,");
    select(shown, kCorrection);
    EXPECT_EQ(labels(shown), "Journal,Year,Volume,Number,Page Number,");
    EXPECT_EQ(values(shown), "JAMA|2004|291|20|2432");
    shown.type({u"Textbox", 1}, u"2005");
    select(shown, kRegular);
    EXPECT_EQ(labels(shown), "");
    EXPECT_EQ(values(shown), "") << "the title of an abstract is no regular statement";
    select(shown, kAbstractOf);
    EXPECT_EQ(values(shown), "Lee K|Title|JAMA|2005|291|20|2432");
}

TEST(RefersToForm, SeriesAreNumberedNewOrOld) {
    const ShownForm shown(kRefersTo, statement(u"Refers to", u""), u"");
    select(shown, kSeries);
    shown.at(u"NewOption").click();
    EXPECT_EQ(values(shown), "n.s.");
    shown.form->userSpun(shown.at(u"UpDown"), true);
    EXPECT_TRUE(shown.at(u"NumberedOption").value()) << "who counts means a number";
    shown.form->userSpun(shown.at(u"UpDown"), true);
    EXPECT_EQ(values(shown), "2nd");
    shown.type(u"NumSeries", u"x");
    EXPECT_EQ(values(shown), "2nd");
    shown.at({u"SeriesOptionButton", 2}).click();
    EXPECT_EQ(values(shown), "o.s.");
}

TEST(RefersToForm, WhatStandsRoundAReprintStays) {
    for (const bool isChanged : {false, true}) {
        const ShownForm shown(kRefersTo, statement(u"Reprint", u"Essays"), u"New York: Norton, Essays. Print.");
        if (isChanged) {
            select(shown, kCorrection);
        }
        shown.clickOk();
        EXPECT_EQ(told(shown).front(), isChanged ? "setParentWidgetsValue(, Correction)"
                                                 : "setParentWidgetsValue(New York: Norton, Essays. Print., Reprint)");
    }
}

TEST(RefersToForm, WhatTheStyleDoesNotWriteStays) {
    const ShownForm shown(kRefersTo, statement(u"Retracted in", u"Lancet|2010"), u"retracted in: Lancet. 2010");
    shown.clickOk();
    EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(retracted in: Lancet. 2010, Retracted in)");
}

}  // namespace
}  // namespace quorvel
