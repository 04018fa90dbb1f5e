#pragma once

#include "core/implementor.h"
#include "host/com/host_reference.h"
#include "host/com/late_bound_object.h"
#include "host/interfaces.h"

namespace quorvel::host {

/// The host's implementor behind the port. Its members get the slots as arrays of one type, by reference, as
/// a class of the host declares them: texts, formatted texts, flags.
class HostImplementor final : public Implementor, public HostObject, public HasDispatch {
public:
    /// An empty reference for a host that passed none.
    static ImplementorRef of(IDispatch* implementor);

    explicit HostImplementor(IDispatch* implementor) : mObject(implementor, u"the implementor", IID_IImplementor) {}

    void ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) override;
    bool ToFormattedStringImpl(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                               bool shortenedVersion) override;
    void initChecking(std::vector<bool>& checkingArray, bool isFootnote) override;

    const HostObject* hostObject() const override { return this; }
    IDispatch* dispatch() const override { return mObject.dispatch(); }

private:
    LateBoundObject mObject;
};

}  // namespace quorvel::host
