#pragma once

#include "host/com/named_dispatch.h"
#include "host/forms/form_controls.h"

namespace quorvel::host {

/// The controls of a form in the order of reading: `Controls("Year")`, `Controls("OptionButton", 1)`, `Controls(0)`,
/// `Controls.Count`, `For Each`. A name without index gives the whole array when it is one's. An unknown name is a
/// reported error 438, a place or an index that there is not error 9; both give Nothing.
class ControlsObject final : public NamedDispatch {
public:
    explicit ControlsObject(FormControlsRef controls) : mControls(std::move(controls)) {}

private:
    ~ControlsObject() override = default;

    DISPID idOf(TextView name) override;
    std::optional<NamedMember> memberOf(DISPID id) override;
    Variant read(DISPID id, const NamedArguments& arguments) override;
    void write(DISPID id, const NamedArguments& indexesAndValue) override;
    TextView defaultMember() const override;
    void report(TextView procedure) noexcept override { mControls->report(procedure); }

    FormControlsRef mControls;
};

/// The control by the arguments of a call: a name, a name and an index, or a place. The whole collection without any.
ComPtr<IDispatch> controlBy(const FormControlsRef& controls, const NamedArguments& arguments);

/// An array of controls of one name: `authors(1)`, `authors.Count`, `LBound`, `UBound`, `For Each`.
class ControlArray final : public NamedDispatch {
public:
    ControlArray(FormControlsRef controls, TextView name) : mControls(std::move(controls)), mName(name) {}

    FormControls& controls() { return *mControls; }
    const Text& name() const { return mName; }

private:
    ~ControlArray() override = default;

    DISPID idOf(TextView name) override;
    std::optional<NamedMember> memberOf(DISPID id) override;
    Variant read(DISPID id, const NamedArguments& arguments) override;
    void write(DISPID id, const NamedArguments& indexesAndValue) override;
    TextView defaultMember() const override;
    void report(TextView procedure) noexcept override { mControls->report(procedure); }

    FormControlsRef mControls;
    Text mName;
};

}  // namespace quorvel::host
