#pragma once

#include "host/com/automation.h"

#include <deque>
#include <memory>

#include "forms/form.h"
#include "host/com/named_dispatch.h"
#include "host/forms/form_controls.h"
#include "host/forms/sub_form.h"

namespace quorvel::host {

/// A form as the host and the proxy see it, late-bound: the protocol of all forms, its place in twips, its controls by
/// name (`form.OkButton`, `form.authors(1)`, `form.Controls("Year")`), and the further members that its kind has.
/// Which members those are stands in the table in form_object.cpp and in the form's design.
///
/// It keeps the form. With its last reference a form that is still open closes as its close box does: nothing is
/// written back.
class FormObject final : public NamedDispatch, private SubForm {
public:
    explicit FormObject(std::shared_ptr<forms::Form> form)
        : mForm(std::move(form)), mControls(std::make_shared<FormControls>(mForm)) {}

    forms::Form& form() const { return *mForm; }
    const FormControlsRef& controls() const { return mControls; }
    /// The picture that the form was dressed with.
    const ComPtr<IDispatch>& icon() const { return mIcon; }
    void keepIcon(ComPtr<IDispatch> icon) { mIcon = std::move(icon); }

private:
    ~FormObject() override = default;

    DISPID idOf(TextView name) override;
    std::optional<NamedMember> memberOf(DISPID id) override;
    Variant read(DISPID id, const NamedArguments& arguments) override;
    void write(DISPID id, const NamedArguments& indexesAndValue) override;
    void report(TextView procedure) noexcept override { mControls->report(procedure); }
    ComPtr<IUnknown> elementAccess() override { return accessToSubForm(this, this); }
    void released() noexcept override;

    void reveal() override { mForm->reveal(); }

    const forms::FormMember* furtherMember(DISPID id) const;
    /// The name of a control or of an array of them; null for another member.
    const Text* controlName(DISPID id) const;

    std::shared_ptr<forms::Form> mForm;
    FormControlsRef mControls;
    ComPtr<IDispatch> mIcon;
    // Those that somebody asked for; their places are their numbers, and their texts stay where they are.
    std::deque<Text> mControlNames;
};

}  // namespace quorvel::host
