#pragma once

#include <cstdint>
#include <memory>

#include "core/host_object.h"
#include "core/text.h"

namespace quorvel {

/// The numbers under which run-time errors reach a report: the classic ones, which the host's
/// developers know by heart.
enum class ErrorNumber : std::int32_t {
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    OutOfStackSpace = 28,
    InternalError = 51,
    ObjectNotSet = 91,
    ComponentNotRegistered = 339,
    CannotCreateObject = 429,
    NoSuchMember = 438,
    AutomationError = 440,
    ArgumentNotOptional = 449,
    WrongNumberOfArguments = 450,
    ServerUnavailable = 462,
};

/// The text that goes with a number.
TextView descriptionOf(ErrorNumber number);
/// The same with what it is about: "Type mismatch: argument 7, andSeparator".
Text descriptionOf(ErrorNumber number, TextView subject);

/// A run-time error inside the library. It never leaves the procedure in which it happens: the
/// trap of procedure.h reports it.
class RuntimeError {
public:
    explicit RuntimeError(ErrorNumber number) : RuntimeError(number, Text(descriptionOf(number))) {}
    RuntimeError(ErrorNumber number, Text description, HostObjectRef object = nullptr)
        : RuntimeError(static_cast<std::int32_t>(number), std::move(description), std::move(object)) {}
    /// An error with a number of the host's own.
    RuntimeError(std::int32_t number, Text description, HostObjectRef object)
        : mNumber(number), mDescription(std::move(description)), mObject(std::move(object)) {}

    std::int32_t number() const { return mNumber; }
    const Text& description() const { return mDescription; }
    /// The host object whose call failed; empty when none was involved.
    const HostObjectRef& object() const { return mObject; }

private:
    std::int32_t mNumber;
    Text mDescription;
    HostObjectRef mObject;
};

/// The object behind a reference; error 91 when the reference is empty.
template <class T>
T& object(const std::shared_ptr<T>& reference) {
    if (!reference) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return *reference;
}

/// The same for a member variable, which the host may replace in the middle of the call that is made to its
/// object: `held(mOutputTemplate)->Reset(9)` keeps the object until that call ends.
template <class T>
std::shared_ptr<T> held(const std::shared_ptr<T>& reference) {
    object(reference);
    return reference;
}

}  // namespace quorvel
