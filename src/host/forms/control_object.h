#pragma once

#include "host/com/named_dispatch.h"
#include "host/forms/form_controls.h"

namespace quorvel::host {

/// A control of a form as the host sees it. It has the members that its kind has; which those are stands in the table
/// in control_object.cpp. When its form is closed, it answers empty values and reports error 91.
///
/// A new `Text` or `Value` raises the same events as the user's typing or clicking. Places are twips from the left
/// upper corner of the form's client area. `Visible` is what the user sees: False also when the frame around it is
/// hidden.
class ControlObject final : public NamedDispatch {
public:
    /// What a member works on; the form is there for the length of the call.
    struct Target {
        forms::Form& form;
        forms::Control& control;
        FormControls& controls;
    };

    ControlObject(FormControlsRef controls, forms::Control& control)
        : mControls(std::move(controls)), mControl(control), mKind(control.kind()) {}

    /// Writes the member that stands for the control itself.
    void writeDefault(const NamedArguments& value);

private:
    ~ControlObject() override { mControls->forget(*this); }

    DISPID idOf(TextView name) override;
    std::optional<NamedMember> memberOf(DISPID id) override;
    Variant read(DISPID id, const NamedArguments& arguments) override;
    void write(DISPID id, const NamedArguments& indexesAndValue) override;
    TextView defaultMember() const override;
    void report(TextView procedure) noexcept override { mControls->report(procedure); }

    FormControlsRef mControls;
    // There as long as the form is.
    forms::Control& mControl;
    forms::ControlKind mKind;
};

/// A control takes a new value for the member that stands for it. Error 438 for a whole array, and for a control
/// without such a member.
/// @param object of `FormControls`
void writeValueOf(const ComPtr<IDispatch>& object, const NamedArguments& indexesAndValue);

}  // namespace quorvel::host
