#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "forms/forms.h"
#include "support/recording_object.h"
#include "support/recording_view.h"

namespace quorvel {

/// A form with windows and a host of the test's.
struct ShownForm {
    /// @param element stands for the element of the type; it must have the members that the form asks for
    ShownForm(std::int16_t type, std::shared_ptr<RecordingObject> theElement, TextView text, TextView secondary = {})
        : element(std::move(theElement)), form(forms::make(type)) {
        for (const char16_t* const member : {u"TooltipShow", u"TooltipHide", u"Terminate", u"setParentWidgetsValue",
                                             u"ReturnFocus", u"WebsiteAddress"}) {
            callback->does(member, [](forms::LateObject::Arguments) { return forms::Value(); });
        }
        form->attach(view);
        form->Initialize(callback, u"Product", nullptr);
        form->Show(7);
        form->ParentWidgetChanged(element, nullptr, text, secondary);
        form->reveal();
    }

    forms::Control& at(const forms::ControlName& which) const { return form->control(which); }
    Text preview() const { return at(u"Output").text(); }
    void type(const forms::ControlName& which, TextView text) const {
        form->userEntered(at(which));
        form->userTyped(at(which), text);
    }
    void clickOk() const { form->userClicked(at(u"OkButton")); }

    std::shared_ptr<RecordingObject> element;
    std::shared_ptr<RecordingObject> callback = std::make_shared<RecordingObject>();
    std::shared_ptr<RecordingView> view = std::make_shared<RecordingView>();
    std::shared_ptr<forms::Form> form;
};

/// What the host was told.
inline std::vector<std::string> told(const ShownForm& shownForm) {
    return shownForm.callback->calls;
}

}  // namespace quorvel
