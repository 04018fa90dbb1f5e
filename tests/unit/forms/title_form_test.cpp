#include <gtest/gtest.h>

#include "elements/title/title.h"
#include "support/recording_sink.h"
#include "support/shown_form.h"

namespace quorvel {
namespace {

using forms::Value;

constexpr std::int16_t kTitle = 1;

/// The library's own element in MLA, by the names of its members.
std::shared_ptr<RecordingObject> titleElement(TextView types = u"Chapter title,Introduction,Interview") {
    auto object = std::make_shared<RecordingObject>();
    RecordingObject* const self = object.get();
    const auto title = std::make_shared<OutputTemplateTitle>();
    title->Initialize(std::make_shared<RecordingSink>());
    title->Reset(
        {2, nullptr, false, true, u"The rule of books & articles.", true, u"The rule of parts.", true, Text(types)});
    object->has(u"TitleSubtypes", Value(title->TitleSubtypes()));
    object->has(u"UsesTitleType", Value(title->UsesTitleType()));
    object->does(u"Parse", [=](forms::LateObject::Arguments arguments) {
        Text text = arguments[0].asText();
        title->Parse(text, arguments[1].asText());
        self->has(u"value(0)", Value(title->value(0)));
        self->has(u"value(1)", Value(title->value(1)));
        self->has(u"value(2)", Value(title->value(2)));
        self->has(u"TitleType", Value(title->TitleType()));
        return Value();
    });
    const auto take = [=] {
        title->value(0, self->valueOf(u"value(0)").asText());
        title->value(1, self->valueOf(u"value(1)").asText());
        title->value(2, self->valueOf(u"value(2)").asText());
        title->TitleType(self->valueOf(u"TitleType").asText());
    };
    object->does(u"toString", [=](forms::LateObject::Arguments) {
        take();
        return Value(title->toString(false, false));
    });
    object->does(u"CapitalizationRule", [=](forms::LateObject::Arguments) {
        take();
        return Value(title->CapitalizationRule());
    });
    object->does(u"formatRule", [=](forms::LateObject::Arguments arguments) {
        return Value(title->formatRule(arguments[0].asText()));
    });
    object->does(u"TitleTypeToCaption", [=](forms::LateObject::Arguments arguments) {
        return Value(title->TitleTypeToCaption(arguments[0].asText()));
    });
    return object;
}

std::string titleOf(const ShownForm& shown) {
    return test::utf8Of(shown.at(u"Title").text());
}

bool isRuleShown(const ShownForm& shown) {
    EXPECT_EQ(shown.at(u"RuleLabel").isShown(), shown.at(u"HighlightLabel").isShown());
    return shown.at(u"RuleLabel").isShown();
}

void leave(const ShownForm& shown) {
    shown.form->userLeft(shown.at(u"Title"));
}

TEST(TitleForm, TellsTheRuleAndHighlightsWhatItHasChanged) {
    const ShownForm shown(kTitle, titleElement(), u"The double Helix: a personal account");
    EXPECT_EQ(titleOf(shown), "The Double Helix: A Personal Account");
    EXPECT_TRUE(isRuleShown(shown));
    EXPECT_EQ(shown.at(u"RuleLabel").caption(),
              u"Product has corrected your title according to the following rule. Click OK when you are satisfied with "
              u"your title.\nThe rule of books && articles.");
    const Text& document = shown.at(u"Title").rtf();
    EXPECT_TRUE(contains(document, u"The \\highlight1\\cf2 Double\\highlight0\\cf0  Helix:"));
    EXPECT_EQ(split(document, u"\\highlight1").size(), 5U);
    shown.at({u"OptionButton", 0}).click();
    EXPECT_TRUE(endsWith(shown.at(u"RuleLabel").caption(), u"\nThe rule of parts."));

    shown.form->ParentWidgetChanged(shown.element, nullptr, u"The Double Helix", {});
    EXPECT_FALSE(isRuleShown(shown));
    EXPECT_EQ(titleOf(shown), "The Double Helix");
}

TEST(TitleForm, TheUsersWordsAreNeverUndone) {
    const ShownForm shown(kTitle, titleElement(), u"The double helix");
    EXPECT_EQ(titleOf(shown), "The Double Helix");
    const int documents = shown.view->previews;
    for (const TextView typed :
         {u"The ouble Helix", u"The double Helix", u"The double Helix a", u"The double Helix again"}) {
        shown.type(u"Title", typed);
        EXPECT_EQ(titleOf(shown), test::utf8Of(typed)) << "nothing is corrected while the user types";
    }
    EXPECT_EQ(shown.preview(), u"The double Helix Again");
    EXPECT_LE(shown.view->previews, documents + 4) << "the box gets no document while the user types";
    leave(shown);
    EXPECT_EQ(titleOf(shown), "The double Helix Again");
    EXPECT_TRUE(isRuleShown(shown));
    leave(shown);
    EXPECT_EQ(titleOf(shown), "The double Helix Again");
    shown.type(u"Title", u"The double helix again");
    leave(shown);
    EXPECT_FALSE(isRuleShown(shown)) << "all that the rule has changed is the user's again";
    shown.clickOk();
    EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(The double helix again, )");
}

TEST(TitleForm, OkCorrectsWhatWasTypedLastAndPartsStayApart) {
    const ShownForm shown(kTitle, titleElement(), u"Le deuxi\u00E8me sexe: les faits [The second sex]");
    EXPECT_EQ(titleOf(shown), "Le deuxi\u00E8me sexe: les faits [The second sex]");
    shown.type(u"Title", u" the art of war:  an essay [De arte] ");
    shown.clickOk();
    EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(The Art of War: An Essay [De arte], )");
    EXPECT_EQ(shown.element->valueOf(u"value(0)").asText(), u"The Art of War");
    EXPECT_EQ(shown.element->valueOf(u"value(1)").asText(), u"An Essay");
    EXPECT_EQ(shown.element->valueOf(u"value(2)").asText(), u"De arte");
}

TEST(TitleForm, TypesAreThoseOfTheStyleTheOneThatWasReadAndNone) {
    struct Case {
        TextView types;
        TextView type;
        std::string captions;
        std::int16_t selected;
    };
    const Case kCases[] = {
        {u"Chapter title,Introduction,Interview", u"Interview", "Chapter;Interview of;None of these;", 1},
        {u"Chapter title,Introduction,Interview", u"", "Chapter;Interview of;None of these;", 2},
        {u"Chapter title,Introduction,Interview", u"Introduction", "Chapter;Interview of;Intro;None of these;", 2},
        {u"", u"Letter", "", 0},
    };
    for (const Case& row : kCases) {
        const ShownForm shown(kTitle, titleElement(row.types), u"A Life", row.type);
        std::string captions;
        for (std::int16_t i = 0; i < 20; ++i) {
            const forms::Control& option = shown.at({u"OptionButton", i});
            captions += option.isShown() ? test::utf8Of(option.caption()) + ";" : "";
            EXPECT_TRUE(!option.isShown() || option.value() == (i == row.selected));
        }
        EXPECT_EQ(captions, row.captions);
        EXPECT_EQ(shown.at(u"TitleRefersLabel").isShown(), !captions.empty());
        // The second text is the type, of another option as well.
        if (!captions.empty()) {
            shown.at({u"OptionButton", 0}).click();
            EXPECT_EQ(shown.element->valueOf(u"TitleType").asText(), u"Chapter title");
            shown.at({u"OptionButton", row.selected}).click();
        }
        shown.clickOk();
        EXPECT_TRUE(told(shown).front().ends_with(", " + test::utf8Of(row.type) + ")")) << told(shown).front();
    }
}

TEST(TitleForm, WithoutAWindowForTheBoxTheTitleStays) {
    const ShownForm shown(kTitle, titleElement(), u"The double helix");
    shown.form->attach(nullptr);
    shown.clickOk();
    EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(The Double Helix, )");
}

}  // namespace
}  // namespace quorvel
