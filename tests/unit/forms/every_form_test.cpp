// What holds for the form of every element, whatever the host gives it.

#include <gtest/gtest.h>

#include "support/recording_service.h"
#include "support/shown_form.h"

namespace quorvel {
namespace {

constexpr std::int16_t kLastType = 17;

/// Types into every box that is seen and clicks on everything else, but for the buttons.
void useEverything(const ShownForm& shown) {
    for (forms::Control& control : shown.form->controls()) {
        if (!control.isShown()) {
            continue;
        }
        shown.form->userPointedAt(&control);
        switch (control.kind()) {
            case forms::ControlKind::TextBox:
            case forms::ControlKind::ComboBox:
                shown.form->userEntered(control);
                shown.form->userTyped(control, u" 7, & {\\x} ");
                shown.form->userLeft(control);
                break;
            case forms::ControlKind::RichText:
                if (!control.row().isReadOnly) {
                    shown.form->userEntered(control);
                    shown.form->userTyped(control, u"7, & {\\x}");
                    shown.form->userLeft(control);
                }
                break;
            case forms::ControlKind::OptionButton:
            case forms::ControlKind::CheckBox: shown.form->userClicked(control); break;
            case forms::ControlKind::UpDown:
                shown.form->userSpun(control, true);
                shown.form->userSpun(control, false);
                break;
            default: break;
        }
    }
}

class EveryForm : public ReportingTest {};

TEST_F(EveryForm, WorksThroughToTheEndWithAnElementThatHasNoMembers) {
    for (std::int16_t type = 0; type <= kLastType; ++type) {
        if (!forms::make(type)) {
            continue;
        }
        const ShownForm shown(type, std::make_shared<RecordingObject>(), u"text", u"second");
        EXPECT_FALSE(service().errors().empty()) << type;
        useEverything(shown);
        // The same form again, and without any element.
        shown.form->ParentWidgetChanged(nullptr, nullptr, u"", {});
        useEverything(shown);
        shown.callback->calls.clear();
        shown.clickOk();
        ASSERT_EQ(shown.callback->calls.size(), 2U) << type;
        EXPECT_EQ(shown.callback->calls.back(), "Terminate(1)");
        service().forget();
    }
}

}  // namespace
}  // namespace quorvel
