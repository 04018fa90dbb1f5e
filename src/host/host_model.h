#pragma once

#include "core/reference_model.h"
#include "host/com/host_reference.h"
#include "host/com/late_bound_object.h"
#include "host/interfaces.h"

namespace quorvel::host {

/// The host's reference model behind the port.
class HostModel final : public ReferenceModel, public HasDispatch {
public:
    /// An empty reference for a host that passed none.
    static ReferenceModelRef of(IDispatch* model);

    explicit HostModel(IDispatch* model) : mObject(model, u"the model", IID_IReferenceModel) {}

    Text value(std::int16_t index) const override;
    void value(std::int16_t index, TextView text) override;

    IDispatch* dispatch() const override { return mObject.dispatch(); }

private:
    LateBoundObject mObject;
};

/// The host's dictionary of field names behind the port.
class HostKeyToInternalIndex final : public KeyToInternalIndex, public HasDispatch {
public:
    static KeyToInternalIndexRef of(IDispatch* dictionary);

    explicit HostKeyToInternalIndex(IDispatch* dictionary) : mObject(dictionary, u"the dictionary of fields") {}

    std::int16_t item(TextView key) const override;
    /// By the dictionary's `Exists`; a host's own class without that member has every key it is asked for.
    bool has(TextView key) const override;

    IDispatch* dispatch() const override { return mObject.dispatch(); }

private:
    LateBoundObject mObject;
};

}  // namespace quorvel::host
