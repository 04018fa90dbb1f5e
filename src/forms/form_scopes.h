#pragma once

#include <exception>

#include "core/procedure.h"
#include "forms/form.h"

/// How a form works: for form.cpp and form_events.cpp alone.
namespace quorvel::forms {

inline constexpr ControlName kOkButton = u"OkButton";
inline constexpr ControlName kCancelButton = u"CancelButton";

/// Whether a user types into it.
inline bool isBox(const Control& control) {
    return control.kind() == ControlKind::TextBox || control.kind() == ControlKind::ComboBox ||
           (control.kind() == ControlKind::RichText && !control.row().isReadOnly);
}

/// While the form moves its own controls, their changes refresh nothing.
class Form::Filling {
public:
    explicit Filling(Form& form) : mForm(form), mBefore(form.mSuppressUpdatePreview) {
        form.mSuppressUpdatePreview = true;
    }
    Filling(const Filling&) = delete;
    Filling& operator=(const Filling&) = delete;
    ~Filling() { mForm.mSuppressUpdatePreview = mBefore; }

private:
    Form& mForm;
    bool mBefore;
};

template <class Body>
void Form::handle(TextView name, Body&& body) noexcept {
    const std::shared_ptr<Form> keepAlive = weak_from_this().lock();
    ++mHandled;
    try {
        body();
    } catch (...) {
        reportCurrentException(*this, name);
    }
    if (mHandled == 1 && mIsLayoutStale) {
        layOut();
    }
    --mHandled;
}

}  // namespace quorvel::forms
