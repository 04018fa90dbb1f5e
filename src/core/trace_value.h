#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <span>
#include <variant>
#include <vector>

#include "core/host_object.h"
#include "core/output_sink.h"
#include "core/text.h"

namespace quorvel {

/// A parameter or field on its way to a report: its declared type, and its value borrowed from the
/// owner for the length of the call.
class TraceValue {
public:
    /// An object; the pointer is null when it is empty or has no face towards the host.
    using Object = const HostObject*;
    using Storage =
        std::variant<bool, std::int16_t, std::int32_t, std::int64_t, float, TextView, Object, const std::vector<bool>*,
                     const std::vector<std::int16_t>*, const std::vector<Text>*, const std::vector<OutputSinkRef>*>;

    TraceValue(bool value) : mStorage(value) {}
    TraceValue(std::int16_t value) : mStorage(value) {}
    TraceValue(std::int32_t value) : mStorage(value) {}
    /// A window handle or the parameter of a message, where those are as wide.
    TraceValue(std::int64_t value) : mStorage(value) {}
    TraceValue(float value) : mStorage(value) {}
    TraceValue(TextView value) : mStorage(value) {}
    TraceValue(const Text& value) : mStorage(TextView(value)) {}
    TraceValue(const std::vector<bool>& value) : mStorage(&value) {}
    TraceValue(const std::vector<std::int16_t>& value) : mStorage(&value) {}
    TraceValue(const std::vector<Text>& value) : mStorage(&value) {}
    template <class T>
    TraceValue(const std::shared_ptr<T>& value) : mStorage(hostObject(value.get())) {}
    TraceValue(Object value) : mStorage(value) {}
    /// The fragments of an assembly; the plain slots' are empty.
    TraceValue(const std::vector<OutputSinkRef>& value) : mStorage(&value) {}
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

/// The parameters of a call: a braced list, or an array that was made from a table of options. Borrowed for
/// the length of the call.
class ParameterList {
public:
    ParameterList(std::initializer_list<Parameter> list) : mList(list.begin(), list.size()) {}
    template <std::size_t N>
    ParameterList(const std::array<Parameter, N>& list) : mList(list) {}

    bool empty() const { return mList.empty(); }
    auto begin() const { return mList.begin(); }
    auto end() const { return mList.end(); }

private:
    std::span<const Parameter> mList;
};

/// Of a procedure that has none.
inline constexpr std::initializer_list<Parameter> kNoParameters = {};

}  // namespace quorvel
