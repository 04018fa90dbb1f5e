#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "core/host_object.h"
#include "core/text.h"

namespace quorvel::forms {

class LateObject;
using LateObjectRef = std::shared_ptr<const LateObject>;

/// What members of a host's object take and give.
class Value {
public:
    Value() = default;
    explicit Value(bool value) : mStorage(value) {}
    explicit Value(std::int32_t value) : mStorage(value) {}
    explicit Value(TextView value) : mStorage(Text(value)) {}
    explicit Value(Text value) : mStorage(std::move(value)) {}
    explicit Value(std::vector<Text> value) : mStorage(std::move(value)) {}
    explicit Value(LateObjectRef value) : mStorage(std::move(value)) {}
    Value(const char16_t*) = delete;

    // The value as another type, in the manner of the platform: a number is True unless it is 0, "True" and "False"
    // are flags, what is empty is the empty value of the type. Error 13 when it does not convert.
    bool asFlag() const;
    std::int32_t asNumber() const;
    Text asText() const;
    /// A single text is a list of one.
    std::vector<Text> asTexts() const;
    /// Empty unless it is an object.
    LateObjectRef asObject() const;

    /// What it holds.
    const auto& storage() const { return mStorage; }

private:
    std::variant<std::monostate, bool, std::int32_t, Text, std::vector<Text>, LateObjectRef> mStorage;
};

/// Port: an object of the host, or one of the library's own, that is used by the names of its members. A form knows
/// the element, the model, the callback and the picture of its icon in no other way.
class LateObject : public HostObject {
public:
    using Arguments = std::span<const Value>;

    // Each fails with a RuntimeError: 438 when the object has no such member, else what the member says. Names are
    // literals, by whose address an implementation may remember them.

    /// Reads a property without arguments.
    virtual Value get(const char16_t* member) const = 0;
    /// Calls a method, or reads a property with arguments.
    virtual Value call(const char16_t* member, Arguments arguments) const = 0;
    /// The same of a method that leaves something in its arguments: they hold it afterwards.
    virtual Value callInOut(const char16_t* member, std::span<Value> arguments) const {
        return call(member, arguments);
    }
    /// Gives a property, with its indexes before the value if it has any, a new value.
    virtual void put(const char16_t* member, Arguments indexesAndValue) const = 0;
};

}  // namespace quorvel::forms
