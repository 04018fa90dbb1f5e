#pragma once

#include "host/com/automation.h"

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "host/com/com_ptr.h"
#include "host/com/host_reference.h"
#include "host/com/variant.h"

namespace quorvel::host {

/// A host object whose members are called by name, exactly as spelled; an id is looked up once per
/// object. A failing call throws a RuntimeError that names the object. The object is kept alive during
/// a call, whatever the call does.
class LateBoundObject {
public:
    /// Empty when the host passed no object; every call then fails with error 91.
    explicit LateBoundObject(IDispatch* object);

    IDispatch* dispatch() const { return mObject.get(); }

    /// Calls a method, or reads a property with arguments.
    template <class... Arguments>
    Variant call(const wchar_t* member, Arguments&&... arguments) const {
        std::array<Variant, sizeof...(Arguments)> values = {Variant(std::forward<Arguments>(arguments))...};
        return invoke(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, values.data(), values.size());
    }

    /// The same with arguments that the caller keeps.
    Variant callWith(const wchar_t* member, std::span<const Variant> arguments) const {
        return invoke(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments.data(), arguments.size());
    }

    /// Reads a property without arguments.
    Variant get(const wchar_t* member) const;

    /// Gives a property, with its indexes before the value if it has any, a new value.
    template <class... Arguments>
    void put(const wchar_t* member, Arguments&&... arguments) const {
        std::array<Variant, sizeof...(Arguments)> values = {Variant(std::forward<Arguments>(arguments))...};
        invoke(member, DISPATCH_PROPERTYPUT, values.data(), values.size());
    }

    /// An element of a script's array.
    Variant element(std::int32_t index) const;
    void putElement(std::int32_t index, Variant value) const;

private:
    /// The id of a member whose name is a literal; it is looked up once.
    DISPID idOf(const wchar_t* member) const;
    DISPID lookUp(const wchar_t* member) const;
    /// `arguments` in the order of the declaration.
    Variant invoke(const wchar_t* member, WORD flags, const Variant* arguments, std::size_t count) const;
    Variant invoke(DISPID id, WORD flags, const Variant* arguments, std::size_t count) const;

    ComPtr<IDispatch> mObject;
    // Scripting engines answer the exact letter case through this interface only.
    ComPtr<IDispatchEx> mObjectEx;
    mutable std::vector<std::pair<std::wstring_view, DISPID>> mIds;
};

/// An argument of `LateBoundObject::call` that the host fills: read `value` afterwards.
struct ByReference {
    explicit ByReference(VARIANT& target) : value(target) {}
    operator Variant() const { return Variant::referenceTo(value); }
    VARIANT& value;
};

}  // namespace quorvel::host
