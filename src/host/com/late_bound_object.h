#pragma once

#include "host/com/automation.h"

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "host/com/automation_error.h"
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
    /// @param role what the object is to the library, a literal for reports
    /// @param face the interface of the type library for that role. An object that implements it is called through it:
    ///        in some languages its members are no members of the object's own interface.
    explicit LateBoundObject(IDispatch* object, const char16_t* role = u"the object", const IID& face = IID_IDispatch);

    /// The object as the host passed it.
    IDispatch* dispatch() const { return mHostObject.get(); }

    /// Calls a method, or reads a property with arguments.
    template <class... Arguments>
    Variant call(const wchar_t* member, Arguments&&... arguments) const {
        std::array<Variant, sizeof...(Arguments)> values = {Variant(std::forward<Arguments>(arguments))...};
        return invoke(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, values.data(), values.size());
    }

    /// Calls a method whose last arguments are optional, with the first `given` of these. A host's procedure may
    /// take exactly what it declares, as those of VBScript do: one that refuses the call for its number of
    /// arguments is called with another number, at least `required`, and with that from then on. Nothing runs
    /// twice: an error from inside the procedure is no refusal.
    template <class... Arguments>
    Variant callWithOptional(const wchar_t* member, std::size_t required, std::size_t given,
                             Arguments&&... arguments) const {
        const std::array<Variant, sizeof...(Arguments)> values = {Variant(std::forward<Arguments>(arguments))...};
        return invokeWithOptional(member, required, given, values.data(), values.size());
    }

    /// Calls a method and reads its answer; one that does not convert is an error that names the method.
    template <class Answer, class... Arguments>
    Answer ask(Answer (*read)(const VARIANT&), const wchar_t* member, Arguments&&... arguments) const {
        const Variant answer = call(member, std::forward<Arguments>(arguments)...);
        try {
            return read(answer);
        } catch (const RuntimeError& error) {
            throw RuntimeError(error.number(), concatenate({error.description(), u": the answer of ", named(member)}),
                               error.object());
        }
    }

    /// Reads a property without arguments.
    Variant get(const wchar_t* member) const;

    /// Gives a property, with its indexes before the value if it has any, a new value.
    template <class... Arguments>
    void put(const wchar_t* member, Arguments&&... arguments) const {
        std::array<Variant, sizeof...(Arguments)> values = {Variant(std::forward<Arguments>(arguments))...};
        invoke(member, DISPATCH_PROPERTYPUT, values.data(), values.size());
    }

    /// The same with arguments that stand in a list.
    Variant callWith(const wchar_t* member, std::span<const Variant> arguments) const {
        return invoke(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments.data(), arguments.size());
    }
    void putWith(const wchar_t* member, std::span<const Variant> indexesAndValue) const {
        invoke(member, DISPATCH_PROPERTYPUT, indexesAndValue.data(), indexesAndValue.size());
    }
    /// Whether the object has a member, without calling it.
    bool has(const wchar_t* member) const;

    /// An element of a script's array.
    Variant element(std::int32_t index) const;
    void putElement(std::int32_t index, Variant value) const;

private:
    struct Member {
        std::wstring_view name;
        DISPID id;
        /// The number of arguments that it takes when it refused another one; else 0.
        std::size_t onlyCount = 0;
        /// Numbers of arguments with which it ran, as bits.
        unsigned accepted = 0;
    };

    /// Where in `mMembers` a member stands whose name is a literal; it is looked up once. No reference, since a call
    /// may come back and look up others.
    std::size_t indexOf(const wchar_t* member) const;
    DISPID lookUp(const wchar_t* member) const;
    HRESULT tryLookUp(const wchar_t* member, DISPID& id) const;
    /// `arguments` in the order of the declaration.
    Variant invoke(const wchar_t* member, WORD flags, const Variant* arguments, std::size_t count) const;
    Variant invoke(DISPID id, const wchar_t* member, WORD flags, const Variant* arguments, std::size_t count) const;
    Variant invokeWithOptional(const wchar_t* member, std::size_t required, std::size_t given, const Variant* arguments,
                               std::size_t all) const;
    HRESULT tryInvoke(DISPID id, WORD flags, const Variant* arguments, std::size_t count, Variant& result,
                      ExceptionInfo& exception) const;
    /// "Add of the formatted text".
    Text named(const wchar_t* member) const;
    bool isRefusalOfCount(HRESULT outcome, const ExceptionInfo& exception) const;

    const char16_t* mRole;
    ComPtr<IDispatch> mHostObject;
    ComPtr<IDispatch> mObject;
    // Scripting engines answer the exact letter case through this interface only.
    ComPtr<IDispatchEx> mObjectEx;
    mutable std::vector<Member> mMembers;
};

/// An argument of `LateBoundObject::call` that the host fills: read `value` afterwards.
struct ByReference {
    explicit ByReference(VARIANT& target) : value(target) {}
    operator Variant() const { return Variant::referenceTo(value); }
    VARIANT& value;
};

}  // namespace quorvel::host
