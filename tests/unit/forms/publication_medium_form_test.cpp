#include <gtest/gtest.h>

#include "support/shown_form.h"

namespace quorvel {
namespace {

using forms::Value;

constexpr std::int16_t kMedium = 16;
constexpr std::int16_t kValues = 10;

/// Every value is the name of its box, "v0" to "v9".
std::shared_ptr<RecordingObject> mediumElement(std::int32_t type, bool tellsDiscs) {
    static constexpr const char16_t* kMembers[] = {u"value(0)", u"value(1)", u"value(2)", u"value(3)", u"value(4)",
                                                   u"value(5)", u"value(6)", u"value(7)", u"value(8)", u"value(9)"};
    auto medium = std::make_shared<RecordingObject>();
    RecordingObject* const self = medium.get();
    for (std::size_t i = 0; i < std::size(kMembers); ++i) {
        medium->has(kMembers[i], Value(Text(u"v") + static_cast<char16_t>(u'0' + i)));
    }
    medium->has(u"Supports", Value(TextView(u"Book or website,CD,Digital file,Microfilm,Stone & clay")));
    medium->has(u"PublicationMediumType", Value(type));
    medium->has(u"IsMultiDiscs", Value(false));
    medium->has(u"SupportsAdvancedCD", Value(tellsDiscs));
    medium->does(u"showDiscs", [=](forms::LateObject::Arguments) {
        return Value(tellsDiscs && self->valueOf(u"PublicationMediumType").asNumber() == 1);
    });
    medium->does(u"Parse", [](forms::LateObject::Arguments) { return Value(); });
    medium->does(u"toString", [](forms::LateObject::Arguments) { return Value(TextView(u"text")); });
    return medium;
}

/// The indexes of the boxes that are seen.
std::string shownBoxes(const ShownForm& shown) {
    std::string indexes;
    for (std::int16_t i = 0; i < kValues; ++i) {
        indexes += shown.at({u"Textbox", i}).isShown() ? std::to_string(i) : "";
    }
    return indexes;
}

/// The values that the element has.
std::string values(const ShownForm& shown) {
    std::string all;
    for (std::int16_t i = 0; i < kValues; ++i) {
        const Text member = Text(u"value(") + static_cast<char16_t>(u'0' + i) + u")";
        all += test::utf8Of(shown.element->valueOf(member).asText()) + ";";
    }
    return all;
}

TEST(PublicationMediumForm, EachMediumHasItsBoxesAndWritesThemAlone) {
    struct Case {
        std::int16_t type;
        bool tellsDiscs;
        std::string boxes;
        std::string written;
        std::string secondText;
    };
    const Case kCases[] = {
        {0, true, "", ";;;;;;;;;;", "Book or website"},
        {1, true, "01789", "v0;v1;;;;;;v7;v8;v9;", "CD"},
        // What the style does not tell is kept all the same.
        {1, false, "789", "v0;v1;;;;;;v7;v8;v9;", "CD"},
        {2, true, "7", ";;;;;;;v7;;;", "Digital file"},
        {3, true, "023456789", "v0;;v2;v3;v4;v5;v6;v7;v8;v9;", "Microfilm"},
        {4, true, "7", ";;;;;;;v7;;;", "Stone & clay"},
    };
    for (const Case& row : kCases) {
        // The medium comes with the text, or the user selects it.
        for (const bool isSelected : {false, true}) {
            const ShownForm shown(kMedium, mediumElement(isSelected ? (row.type + 1) % 5 : row.type, row.tellsDiscs),
                                  u"text");
            if (isSelected) {
                shown.at({u"OptionButton", row.type}).click();
            }
            EXPECT_EQ(shownBoxes(shown), row.boxes) << row.secondText;
            EXPECT_EQ(shown.at(u"IsMultiDiscs").isShown(), row.type == 1 && row.tellsDiscs);
            shown.clickOk();
            EXPECT_EQ(values(shown), row.written) << row.secondText;
            EXPECT_TRUE(told(shown).front().ends_with(", " + row.secondText + ")")) << told(shown).front();
        }
    }
}

TEST(PublicationMediumForm, OptionsAreThoseOfTheStyle) {
    const ShownForm shown(kMedium, mediumElement(0, true), u"text");
    EXPECT_EQ(shown.at({u"OptionButton", 4}).caption(), u"Stone && clay");
    EXPECT_TRUE(shown.at({u"OptionButton", 4}).isShown());
    EXPECT_FALSE(shown.at({u"OptionButton", 5}).isShown());
}

TEST(PublicationMediumForm, AMediumThatIsNotOfferedComesBackUntilAnotherIsSelected) {
    const ShownForm untouched(kMedium, mediumElement(0, true), u"DVD-ROM", u"DVD");
    untouched.clickOk();
    EXPECT_EQ(told(untouched).front(), "setParentWidgetsValue(text, DVD)");

    const ShownForm changed(kMedium, mediumElement(0, true), u"DVD-ROM", u"DVD");
    changed.at({u"OptionButton", 1}).click();
    changed.at({u"OptionButton", 0}).click();
    changed.clickOk();
    EXPECT_EQ(told(changed).front(), "setParentWidgetsValue(text, Book or website)");
}

TEST(PublicationMediumForm, DetailsThatTheStyleDoesNotWriteStayUntilTheMediumIsAnother) {
    const ShownForm untouched(kMedium, mediumElement(1, false), u"CD-ROM. Disc 2");
    untouched.clickOk();
    EXPECT_EQ(told(untouched).front(), "setParentWidgetsValue(CD-ROM. Disc 2, CD)");

    const ShownForm changed(kMedium, mediumElement(1, false), u"CD-ROM. Disc 2");
    changed.at({u"OptionButton", 2}).click();
    changed.clickOk();
    EXPECT_EQ(told(changed).front(), "setParentWidgetsValue(text, Digital file)");
}

TEST(PublicationMediumForm, DiscsCountFromOneAndRefuseWords) {
    const ShownForm shown(kMedium, mediumElement(1, true), u"text");
    forms::Control& disc = shown.at({u"Textbox", 1});
    shown.type({u"Textbox", 1}, u"1 of a set");
    EXPECT_EQ(disc.text(), u"1 of a set") << "it came with another name than a number";
    shown.element->has(u"value(1)", Value(TextView()));
    shown.form->ParentWidgetChanged(shown.element, nullptr, u"text", {});
    forms::Control& arrows = shown.at({u"UpDown", 1});
    shown.form->userSpun(arrows, true);
    shown.form->userSpun(arrows, true);
    EXPECT_EQ(disc.text(), u"2");
    shown.type({u"Textbox", 1}, u"2x");
    EXPECT_EQ(disc.text(), u"2");
    shown.form->userSpun(arrows, false);
    shown.form->userSpun(arrows, false);
    EXPECT_EQ(disc.text(), u"");
}

}  // namespace
}  // namespace quorvel
