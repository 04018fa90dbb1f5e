#pragma once

#include "forms/late_object.h"
#include "host/com/host_reference.h"
#include "host/com/late_bound_object.h"

namespace quorvel::host {

/// An object of the host, or an element of the library's own, as a form uses it: by the names of its members, exactly
/// as spelled. A form's object goes back to the host as the object that it is.
class HostLateObject final : public forms::LateObject, public HasDispatch {
public:
    /// An empty reference for Nothing.
    static forms::LateObjectRef of(IDispatch* object);

    explicit HostLateObject(IDispatch* object) : mObject(object) {}

    forms::Value get(const char16_t* member) const override;
    forms::Value call(const char16_t* member, Arguments arguments) const override;
    forms::Value callInOut(const char16_t* member, std::span<forms::Value> arguments) const override;
    void put(const char16_t* member, Arguments indexesAndValue) const override;

    IDispatch* dispatch() const override { return mObject.dispatch(); }

private:
    LateBoundObject mObject;
};

/// A value as a form has it, for the host: texts as an array of variants, an object as itself.
Variant variantOf(const forms::Value& value);

/// A value of the host's as a form takes it. A number without fraction is a number, any other one is its text, as a
/// date is; an array of any type, a script's included, is its elements as texts. Error 13 or 6 for what is no value.
forms::Value valueOf(const VARIANT& value);

}  // namespace quorvel::host
