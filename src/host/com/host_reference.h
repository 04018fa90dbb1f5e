#pragma once

#include "host/com/automation.h"

#include "core/host_object.h"
#include "host/com/com_ptr.h"

namespace quorvel::host {

/// The one way from a host object of the core back to the host's own interface.
class HasDispatch {
public:
    virtual IDispatch* dispatch() const = 0;

protected:
    ~HasDispatch() = default;
};

/// A host object of which nothing is known but its interface.
class HostReference final : public HostObject, public HasDispatch {
public:
    explicit HostReference(IDispatch* object) : mObject(object) {}
    IDispatch* dispatch() const override { return mObject.get(); }

private:
    ComPtr<IDispatch> mObject;
};

/// The host's own interface of an object; null when it has none.
inline IDispatch* dispatchOf(const HostObject* object) {
    const auto* reference = dynamic_cast<const HasDispatch*>(object);
    return reference != nullptr ? reference->dispatch() : nullptr;
}

}  // namespace quorvel::host
