#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <variant>
#include <vector>

#include "core/host_object.h"
#include "core/text.h"

namespace quorvel {

/// A parameter or field on its way to a report: its declared type, and its value borrowed from the
/// owner for the length of the call.
class TraceValue {
public:
    /// An object; the pointer is null when it is empty or has no face towards the host.
    using Object = const HostObject*;
    using Storage =
        std::variant<bool, std::int16_t, std::int32_t, float, TextView, Object, const std::vector<bool>*,
                     const std::vector<std::int16_t>*, const std::vector<Text>*, const std::vector<Object>*>;

    TraceValue(bool value) : mStorage(value) {}
    TraceValue(std::int16_t value) : mStorage(value) {}
    TraceValue(std::int32_t value) : mStorage(value) {}
    TraceValue(float value) : mStorage(value) {}
    TraceValue(TextView value) : mStorage(value) {}
    TraceValue(const Text& value) : mStorage(TextView(value)) {}
    TraceValue(const std::vector<bool>& value) : mStorage(&value) {}
    TraceValue(const std::vector<std::int16_t>& value) : mStorage(&value) {}
    TraceValue(const std::vector<Text>& value) : mStorage(&value) {}
    template <class T>
    TraceValue(const std::shared_ptr<T>& value) : mStorage(hostObject(value.get())) {}
    TraceValue(Object value) : mStorage(value) {}
    TraceValue(const std::vector<Object>& value) : mStorage(&value) {}
    TraceValue(const void*) = delete;

    const Storage& storage() const { return mStorage; }

    /// The number of the variant type that a value of this kind is declared as.
    std::int32_t typeCode() const;

private:
    static Object hostObject(Object object) { return object; }
    static Object hostObject(const void*) { return nullptr; }

    Storage mStorage;
};

/// The name of a procedure or parameter. Most are literals, whose length is then no work at run time.
class Name {
public:
    template <std::size_t N>
    consteval Name(const char16_t (&literal)[N]) : mText(literal, N - 1) {}
    explicit Name(TextView text) : mText(text) {}

    constexpr operator TextView() const { return mText; }

private:
    TextView mText;
};

/// A parameter of a procedure under its declared name.
struct Parameter {
    Name name;
    TraceValue value;
};

}  // namespace quorvel
