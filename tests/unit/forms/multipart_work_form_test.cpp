#include <gtest/gtest.h>

#include "support/shown_form.h"

namespace quorvel {
namespace {

using forms::Value;

constexpr std::int16_t kMultipartWork = 10;
constexpr std::int16_t kSeries = 0;
constexpr std::int16_t kMultiVol = 1;

/// What a style has, one letter each: "tevnmym" for everything, "-" for what it has not.
std::vector<Text> options(TextView letters) {
    std::vector<Text> flags;
    for (const char16_t letter : letters) {
        flags.emplace_back(letter == u'-' ? u"False" : u"True");
    }
    return flags;
}

std::shared_ptr<RecordingObject> work(bool isMultiVol, TextView seriesOptions, TextView multiVolumeOptions) {
    auto element = std::make_shared<RecordingObject>();
    RecordingObject* const self = element.get();
    const auto isAny = [](TextView letters) { return Value(letters.find_first_not_of(u"-") != TextView::npos); };
    element->has(u"IsMultiVol", Value(isMultiVol));
    element->has(u"SupportSeriesOptions", Value(options(seriesOptions)));
    element->has(u"SupportMultiVolumeOptions", Value(options(multiVolumeOptions)));
    element->has(u"IsSeriesSupported", isAny(seriesOptions));
    element->has(u"IsMultiVolSupported", isAny(multiVolumeOptions));
    element->has(u"IsSeriesTypeSupported", Value(seriesOptions.size() > 6 && seriesOptions[6] != u'-'));
    element->has(u"SupportConcurrentVolsAndTextBoxes", Value(true));
    element->has(u"SupportGeneralEditor", Value(true));
    for (const char16_t* const member : {u"Title", u"editor", u"Volume", u"Number", u"Vols", u"Year", u"SeriesType"}) {
        element->has(member, Value(TextView()));
    }
    element->has(u"EditorType", Value(0));
    element->does(u"Parse", [](forms::LateObject::Arguments) { return Value(); });
    element->does(u"toString", [self](forms::LateObject::Arguments) { return self->valueOf(u"Title"); });
    element->does(u"toMergedString", [](forms::LateObject::Arguments) { return Value(TextView(u"everything")); });
    element->does(u"secondaryOutput", [self](forms::LateObject::Arguments) {
        return Value(TextView(self->valueOf(u"IsMultiVol").asFlag() ? u"Multi-vol." : u"Series"));
    });
    return element;
}

std::string shownBoxes(const ShownForm& shown) {
    std::string names;
    for (const TextView name : {u"Title", u"Editor", u"Volume", u"Number", u"Vols", u"Year"}) {
        names += shown.at(name).isShown() ? test::utf8Of(name) + " " : "";
    }
    names += shown.at(u"CheckBox").isShown() ? "general " : "";
    return names + (shown.at(u"OldSeriesOption").isShown() ? "type" : "");
}

TEST(MultipartWorkForm, RowsAreThoseThatTheStyleHasOfTheKind) {
    struct Case {
        bool isMultiVol;
        TextView seriesOptions;
        TextView multiVolumeOptions;
        std::string rows;
    };
    const Case kCases[] = {
        {false, u"tevnmym", u"tevnmym", "Title Editor Volume Number type"},
        {true, u"tevnmym", u"tevnmym", "Title Editor Volume Number Vols Year general "},
        {false, u"t-v---", u"tevnmym", "Title Volume "},
        {true, u"tevnmym", u"--v-m", "Volume Vols "},
        {false, u"", u"tevnmym", ""},
    };
    for (const Case& row : kCases) {
        const ShownForm shown(kMultipartWork, work(row.isMultiVol, row.seriesOptions, row.multiVolumeOptions), u"text");
        EXPECT_EQ(shownBoxes(shown), row.rows);
        // The other kind and back.
        if (const std::int16_t other = row.isMultiVol ? kSeries : kMultiVol; row.rows.ends_with("type")) {
            shown.at({u"SeriesTypeOption", other}).click();
            EXPECT_NE(shownBoxes(shown), row.rows);
            shown.at({u"SeriesTypeOption", static_cast<std::int16_t>(1 - other)}).click();
            EXPECT_EQ(shownBoxes(shown), row.rows);
        }
    }
}

TEST(MultipartWorkForm, ANewTextIsOfTheKindThatTheStyleHas) {
    const ShownForm shown(kMultipartWork, work(false, u"-------", u"tevnmym"), u"");
    EXPECT_TRUE(shown.at({u"SeriesTypeOption", kMultiVol}).value());
    EXPECT_FALSE(shown.at({u"SeriesTypeOption", kSeries}).isShown());
}

TEST(MultipartWorkForm, SendsTheKindAndKeepsWhatTheStyleDoesNotWrite) {
    const auto element = work(false, u"t-v----", u"tevnmym");
    element->has(u"Title", Value(TextView(u"Studies")));
    {
        const ShownForm shown(kMultipartWork, element, u"Studies");
        shown.at({u"SeriesTypeOption", kMultiVol}).click();
        shown.clickOk();
        EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(Studies, Multi-vol.)");
    }
    for (const char16_t* const member : {u"editor", u"SeriesType"}) {
        element->has(u"IsMultiVol", Value(false));
        element->has(u"editor", Value(TextView()));
        element->has(u"SeriesType", Value(TextView()));
        element->has(member, Value(TextView(u"n.s.")));
        const ShownForm shown(kMultipartWork, element, u"Studies");
        shown.clickOk();
        EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(everything, Series)");
        EXPECT_EQ(element->valueOf(member).asText(), u"n.s.");
    }
}

TEST(MultipartWorkForm, SeriesAreOldNewOrAsTheyCame) {
    for (const TextView type : {u"", u"o.s.", u"n.s.", u"2nd ser."}) {
        const auto element = work(false, u"tevnmym", u"tevnmym");
        element->has(u"SeriesType", Value(type));
        const ShownForm shown(kMultipartWork, element, u"text");
        EXPECT_EQ(shown.at(u"OldSeriesOption").value(), type == u"o.s.");
        EXPECT_EQ(shown.at(u"NewSeriesOption").value(), type == u"n.s.");
        shown.form->UpdateOutput();
        EXPECT_EQ(element->valueOf(u"SeriesType").asText(), type);
        shown.at(u"OldSeriesOption").click();
        EXPECT_EQ(element->valueOf(u"SeriesType").asText(), u"o.s.");
        shown.at(u"NewSeriesOption").click();
        EXPECT_EQ(element->valueOf(u"SeriesType").asText(), u"n.s.");
        shown.at({u"OptionButton", 0}).click();
        EXPECT_EQ(element->valueOf(u"SeriesType").asText(), type == u"2nd ser." ? type : TextView());
    }
}

TEST(MultipartWorkForm, AnotherEditorIsNoGeneralEditor) {
    for (const std::int32_t type : {0, 1, 2}) {
        const auto element = work(true, u"tevnmym", u"tevnmym");
        element->has(u"EditorType", Value(type));
        const ShownForm shown(kMultipartWork, element, u"text");
        EXPECT_EQ(element->valueOf(u"EditorType").asNumber(), type);
        shown.at(u"CheckBox").click();
        EXPECT_EQ(element->valueOf(u"EditorType").asNumber(), type == 0 ? 2 : 0);
        shown.at(u"CheckBox").click();
        EXPECT_EQ(element->valueOf(u"EditorType").asNumber(), type);
    }
}

TEST(MultipartWorkForm, SpinningActsOnPlainNumbers) {
    struct Case {
        TextView before;
        bool isUp;
        TextView after;
    };
    const Case kCases[] = {
        {u"", true, u"1"},
        {u"", false, u""},
        {u"1", false, u""},
        {u"9", true, u"10"},
        {u"IV", true, u"IV"},
        {u"2-4", true, u"2-4"},
        {u"5 to date", false, u"5 to date"},
    };
    for (const Case& row : kCases) {
        for (std::int16_t box = 2; box <= 4; ++box) {
            const ShownForm shown(kMultipartWork, work(true, u"tevnmym", u"tevnmym"), u"text");
            shown.type({u"Textbox", box}, row.before);
            shown.form->userSpun(shown.at({u"UpDown", box}), row.isUp);
            EXPECT_EQ(shown.at({u"Textbox", box}).text(), row.after) << test::utf8Of(row.before);
        }
    }
}

}  // namespace
}  // namespace quorvel
