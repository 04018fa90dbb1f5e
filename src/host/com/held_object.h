#pragma once

#include <memory>

#include "host/com/host_reference.h"
#include "host/com/late_bound_object.h"

namespace quorvel::host {

/// A host object that one of ours keeps and calls by name, and that stands in reports. The host may replace it in
/// the middle of a call: call `held(reference)->call(...)`.
class HeldObject final : public LateBoundObject, public HostObject, public HasDispatch {
public:
    /// An empty reference for Nothing.
    static std::shared_ptr<const HeldObject> of(IDispatch* object) {
        return object != nullptr ? std::make_shared<const HeldObject>(object) : nullptr;
    }

    using LateBoundObject::LateBoundObject;

    IDispatch* dispatch() const override { return LateBoundObject::dispatch(); }
};

using HeldObjectRef = std::shared_ptr<const HeldObject>;

}  // namespace quorvel::host
