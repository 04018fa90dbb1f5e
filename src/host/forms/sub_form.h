#pragma once

#include <memory>
#include <utility>

#include "host/com/element_access.h"

namespace quorvel::host {

/// What the proxy asks of a form of the library's own beyond the members that hosts see.
class SubForm {
public:
    /// Becomes visible, where `Show` put it; called when the form is filled and placed, and again each time it was
    /// used again. Takes the focus the first time alone.
    virtual void reveal() = 0;

protected:
    ~SubForm() = default;
};

/// What the object of a form answers to `ComObject::elementAccess`.
/// @param owner the object, which the answer keeps alive
inline ComPtr<IUnknown> accessToSubForm(IUnknown* owner, SubForm* form) {
    const auto keepAlive = std::make_shared<ComPtr<IUnknown>>(owner);
    return ElementAccess::to(owner, std::shared_ptr<SubForm>(keepAlive, form));
}

/// The form behind an object; empty when the object is no form of ours. The reference keeps the object alive.
inline std::shared_ptr<SubForm> subFormOf(IDispatch* form) {
    return ElementAccess::elementOf<SubForm>(form);
}

}  // namespace quorvel::host
