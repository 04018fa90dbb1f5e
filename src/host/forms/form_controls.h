#pragma once

#include "host/com/automation.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "core/instrumented.h"
#include "core/text.h"
#include "forms/form.h"
#include "host/com/com_ptr.h"

namespace quorvel::host {

class ControlObject;

/// The controls of a form for the objects through which hosts reach them. Holds the form weakly: a host that keeps a
/// control does not keep the form open. As long as somebody holds the object of a control, it is the same one.
class FormControls : public std::enable_shared_from_this<FormControls> {
public:
    explicit FormControls(const std::shared_ptr<forms::Form>& form) : mForm(form), mDesign(form->design()) {}
    FormControls(const FormControls&) = delete;
    FormControls& operator=(const FormControls&) = delete;
    ~FormControls() = default;

    /// Error 91 when the form is closed or gone.
    std::shared_ptr<forms::Form> form() const;
    /// Reports the exception in flight as an error of a procedure of the form's class.
    void report(TextView procedure) const noexcept;

    /// Whether a control or an array of controls has the name, in any letter case.
    bool has(TextView name) const;
    /// A control, or a whole array of them. Error 438 when there is none of the name.
    ComPtr<IDispatch> named(TextView name);
    /// An element of an array. Error 438 when there is no array of the name, 9 when it has no such index.
    ComPtr<IDispatch> element(TextView name, std::int32_t index);
    /// A control by its place in the order of reading, from 0; error 9 when there is none.
    ComPtr<IDispatch> at(std::int32_t position);
    std::int32_t count() const;
    std::vector<ComPtr<IDispatch>> all();
    /// The indexes of an array in ascending order; none when there is no array of the name.
    std::vector<std::int16_t> indexesOf(TextView name) const;

    ComPtr<IDispatch> objectOf(forms::Control& control);
    /// The object of a control is going away.
    void forget(const ControlObject& object) noexcept;

private:
    std::weak_ptr<forms::Form> mForm;
    // A constant, which outlives the form.
    const forms::FormDesign& mDesign;
    std::vector<std::pair<const forms::Control*, ControlObject*>> mObjects;
};

using FormControlsRef = std::shared_ptr<FormControls>;

}  // namespace quorvel::host
