// The protocol that all forms share, shown on the year form, and the layout of all of them.

#include "forms/form.h"

#include <gtest/gtest.h>

#include "core/letter_case.h"
#include "support/recording_service.h"
#include "support/shown_form.h"

namespace quorvel {
namespace {

using forms::ControlKind;
using forms::Value;

/// Reads any text as a plain year, and offers no guesses.
std::shared_ptr<RecordingObject> yearElement() {
    auto year = std::make_shared<RecordingObject>();
    RecordingObject* const self = year.get();
    year->has(u"yearType", Value(0));
    year->has(u"Year", Value(TextView()));
    year->does(u"Supports", [](forms::LateObject::Arguments arguments) { return Value(arguments[0].asNumber() != 2); });
    year->does(u"Parse", [self](forms::LateObject::Arguments arguments) {
        self->has(u"Year", Value(arguments[0].asText()));
        return Value();
    });
    year->does(u"toString", [self](forms::LateObject::Arguments) {
        const std::int32_t type = self->valueOf(u"yearType").asNumber();
        return type == 1 ? Value(TextView(u"n.d.")) : self->valueOf(u"Year");
    });
    return year;
}

TEST(Form, GoesFromTheHostsTextToTheHostsFieldAndCloses) {
    const ShownForm shown(6, yearElement(), u"1990");
    EXPECT_EQ(shown.view->caption, u"Year - Product");
    EXPECT_EQ(shown.view->owner, 7);
    EXPECT_EQ(shown.view->focus, &shown.at(u"Year"));
    EXPECT_EQ(shown.at(u"Year").text(), u"1990");
    EXPECT_EQ(shown.preview(), u"1990");
    EXPECT_FALSE(shown.at({u"OptionButton", 2}).isShown());
    EXPECT_EQ(shown.view->previews, 1) << "one formatting for the whole filling";

    shown.at(u"YearNotKnownOption").click();
    EXPECT_EQ(shown.preview(), u"n.d.");
    shown.type(u"Year", u" 1991 ");
    EXPECT_TRUE(shown.at({u"OptionButton", 0}).value()) << "who types a year knows it";
    EXPECT_EQ(shown.view->previews, 3) << "one for each change";
    shown.form->userPressedEnter();
    const std::vector<std::string> expected = {"setParentWidgetsValue(1991, )", "Terminate(1)"};
    EXPECT_EQ(told(shown), expected);
    EXPECT_TRUE(shown.view->isClosed);
    shown.form->Unload();
    EXPECT_EQ(told(shown), expected) << "a form ends once";
}

TEST(Form, CancelAndTheCloseBoxWriteNothingBack) {
    const std::function<void(const ShownForm&)> kWays[] = {
        [](const ShownForm& shown) { shown.form->userPressedEscape(); },
        [](const ShownForm& shown) { shown.form->Unload(); },
        [](const ShownForm& shown) { shown.form->windowGone(); },
        [](const ShownForm& shown) {
            shown.form->userClicked(shown.at({u"CommandButton", 1}));
        },
    };
    for (const auto& close : kWays) {
        const ShownForm shown(6, yearElement(), u"1990");
        shown.type(u"Year", u"1991");
        close(shown);
        EXPECT_EQ(told(shown), (std::vector<std::string>{"Terminate(1)"}));
    }
}

TEST(Form, AnotherTextInTheMiddleOfOkKeepsTheFormOpen) {
    const ShownForm shown(6, yearElement(), u"1990");
    shown.callback->does(u"setParentWidgetsValue", [&](forms::LateObject::Arguments) {
        shown.form->ParentWidgetChanged(shown.element, nullptr, u"2000", {});
        return Value();
    });
    shown.clickOk();
    EXPECT_FALSE(shown.view->isClosed);
    EXPECT_EQ(shown.preview(), u"2000");
}

class FormReports : public ReportingTest {};

TEST_F(FormReports, EachFailureOfTheHostIsReportedAndTheRestIsDone) {
    for (int failing = 1; failing <= 12; ++failing) {
        for (const bool isElement : {true, false}) {
            const ShownForm shown(6, yearElement(), u"1990");
            service().forget();
            const std::shared_ptr<RecordingObject> failingOne = isElement ? shown.element : shown.callback;
            failingOne->failAt(failingOne->count + failing);
            shown.type(u"Year", u"1991");
            shown.clickOk();
            EXPECT_TRUE(shown.view->isClosed) << failing;
            EXPECT_EQ(shown.callback->calls.size(), 2U) << failing;
            EXPECT_EQ(service().errors().size(), failingOne->count >= failingOne->failing() ? 1U : 0U) << failing;
        }
    }
}

TEST(Form, HelpIsShownOnceAControlIsEntered) {
    const ShownForm shown(6, yearElement(), u"1990");
    shown.form->userPointedAt(&shown.at(u"Year"));
    shown.form->userPointedAt(&shown.at(u"Year"));
    shown.form->userPointedAt(nullptr);
    ASSERT_EQ(told(shown).size(), 2U);
    EXPECT_TRUE(told(shown)[0].starts_with("TooltipShow(")) << told(shown)[0];
    EXPECT_EQ(told(shown)[1], "TooltipHide");
}

/// Whether a caption has the room that its longest text may need.
bool fits(const forms::Control& control) {
    constexpr std::int16_t kTextLine = 8;
    constexpr std::int16_t kMark = 12;
    const bool hasMark =
        control.kind() == forms::ControlKind::OptionButton || control.kind() == forms::ControlKind::CheckBox;
    const forms::Place& place = control.row().place;
    const int lines = std::max(place.height / kTextLine, 1);
    const auto letters =
        std::count_if(control.caption().begin(), control.caption().end(), [](char16_t unit) { return unit != u'&'; });
    return letters * forms::kCharacterWidth <= lines * (place.width - (hasMark ? kMark : 0));
}

/// The letters that lead to controls, in the order of reading.
Text mnemonicsOf(forms::Form& form) {
    Text letters;
    for (const forms::Control& control : form.controls()) {
        const std::size_t mark = control.caption().find(u'&');
        if (mark != Text::npos && control.isShown()) {
            letters += toUpper(control.caption().at(mark + 1));
        }
    }
    return letters;
}

// At every density: what is shown lies inside the form and its frame, captions fit, and nothing overlaps, with all rows
// shown as with those of an empty text.
TEST(Form, EveryFormIsLaidOutWithoutOverlaps) {
    int formsSeen = 0;
    for (std::int16_t type = 0; type <= 18; ++type) {
        if (!forms::make(type)) {
            continue;
        }
        for (const bool isAllShown : {false, true}) {
            ++formsSeen;
            const ShownForm shown(type, std::make_shared<RecordingObject>(), u"");
            if (isAllShown) {
                for (forms::Control& control : shown.form->controls()) {
                    control.setVisible(true);
                }
                shown.form->hostChanged();
            }
            Text mnemonics = mnemonicsOf(*shown.form);
            std::sort(mnemonics.begin(), mnemonics.end());
            EXPECT_EQ(std::adjacent_find(mnemonics.begin(), mnemonics.end()), mnemonics.end())
                << type << ": " << test::utf8Of(mnemonics);
            const forms::Rectangle client = shown.form->scale();
            for (forms::Control& control : shown.form->controls()) {
                if (!control.isShown()) {
                    continue;
                }
                EXPECT_TRUE(fits(control)) << type << ": " << test::utf8Of(control.caption());
                const forms::Rectangle& place = control.place();
                EXPECT_GE(place.left, 0) << test::utf8Of(control.name());
                EXPECT_LE(place.left + place.width, client.width + 1) << test::utf8Of(control.name());
                EXPECT_LE(place.top + place.height, client.height + 1) << test::utf8Of(control.name());
                for (forms::Control& other : shown.form->controls()) {
                    const forms::Rectangle& there = other.place();
                    const bool overlap = &other != &control && other.isShown() && other.frame() == control.frame() &&
                                         place.left < there.left + there.width &&
                                         there.left < place.left + place.width &&
                                         place.top < there.top + there.height && there.top < place.top + place.height;
                    EXPECT_FALSE(overlap) << test::utf8Of(control.name()) << " and " << test::utf8Of(other.name());
                }
            }
        }
    }
    EXPECT_GT(formsSeen, 0);
}

}  // namespace
}  // namespace quorvel
