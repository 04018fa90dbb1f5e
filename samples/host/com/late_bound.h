#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "com/variant.h"

/// Calls to objects of which the host knows nothing but the names of their members.
namespace sample {

/// What a late-bound call came to.
struct CallResult {
    HRESULT code = S_OK;
    Variant value;
    /// What went wrong, in words; empty after success.
    std::wstring error;

    bool ok() const { return SUCCEEDED(code); }
};

struct NamedArgument {
    std::wstring name;
    Variant value;
};

class LateBoundMember;

/// One object, called by the names of its members. The arguments stand in their natural order.
/// `call`, `get` and `put` throw ComError when the call fails; `tryCall` never throws.
class LateBoundObject {
public:
    LateBoundObject() = default;
    explicit LateBoundObject(ComPointer<IDispatch> object) : mObject(std::move(object)) {}
    explicit LateBoundObject(IDispatch* object) : mObject(object) {}

    /// A new object of a registered class, such as "QuorvelTemplate.Main2".
    static LateBoundObject create(const std::wstring& className);

    /// False for Nothing.
    explicit operator bool() const { return static_cast<bool>(mObject); }
    IDispatch* dispatch() const { return mObject.get(); }

    Variant call(const std::wstring& member, const std::vector<Variant>& arguments = {}) const;
    /// With arguments by name, in any order; those that are left out must be optional.
    Variant callNamed(const std::wstring& member, const std::vector<NamedArgument>& arguments) const;
    /// Reads a property; an indexed one takes its indexes as arguments.
    Variant get(const std::wstring& property, const std::vector<Variant>& indexes = {}) const;
    void put(const std::wstring& property, const Variant& value, const std::vector<Variant>& indexes = {}) const;

    /// A member that is called again and again.
    LateBoundMember member(const std::wstring& name) const;

    /// @param kinds DISPATCH_METHOD, DISPATCH_PROPERTYGET or DISPATCH_PROPERTYPUT, or several of them
    CallResult tryCall(const std::wstring& member, WORD kinds, const std::vector<Variant>& arguments,
                       const std::vector<NamedArgument>& namedArguments = {}) const;

private:
    ComPointer<IDispatch> mObject;
};

/// One method of one object, whose name was looked up already: that is half of the cost of a short call.
class LateBoundMember {
public:
    LateBoundMember() = default;
    LateBoundMember(ComPointer<IDispatch> object, std::wstring name, DISPID id)
        : mObject(std::move(object)), mName(std::move(name)), mId(id) {}

    /// @throws ComError when the call fails
    Variant operator()(std::initializer_list<Variant> arguments) const;

private:
    ComPointer<IDispatch> mObject;
    std::wstring mName;
    DISPID mId = DISPID_UNKNOWN;
};

/// What a failure code means, on one line.
std::wstring describe(HRESULT code);

}  // namespace sample
