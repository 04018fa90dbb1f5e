#include "host/com/late_bound_object.h"

#include <algorithm>
#include <string>

#include "host/com/automation_error.h"

namespace quorvel::host {

namespace {

// Host members are looked up in no particular language.
constexpr LCID kNeutral = LOCALE_NEUTRAL;

constexpr std::size_t kMostArguments = 8;

}  // namespace

LateBoundObject::LateBoundObject(IDispatch* object)
    : mObject(object), mObjectEx(queryFor<IDispatchEx>(object, IID_IDispatchEx)) {}

Variant LateBoundObject::get(const wchar_t* member) const {
    // A script's data member refuses a call, a script's function is only called: each in its turn.
    try {
        return invoke(member, DISPATCH_PROPERTYGET, nullptr, 0);
    } catch (const RuntimeError& error) {
        if (error.number() != static_cast<std::int32_t>(ErrorNumber::NoSuchMember)) {
            throw;
        }
    }
    return invoke(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, nullptr, 0);
}

Variant LateBoundObject::element(std::int32_t index) const {
    return invoke(lookUp(std::to_wstring(index).c_str()), DISPATCH_PROPERTYGET, nullptr, 0);
}

void LateBoundObject::putElement(std::int32_t index, Variant value) const {
    invoke(lookUp(std::to_wstring(index).c_str()), DISPATCH_PROPERTYPUT, &value, 1);
}

DISPID LateBoundObject::idOf(const wchar_t* member) const {
    const std::wstring_view name = member;
    const auto known = std::find_if(mIds.begin(), mIds.end(), [&](const auto& entry) { return entry.first == name; });
    if (known != mIds.end()) {
        return known->second;
    }
    const DISPID id = lookUp(member);
    mIds.emplace_back(name, id);
    return id;
}

bool LateBoundObject::has(const wchar_t* member) const {
    DISPID id = DISPID_UNKNOWN;
    return mObject && SUCCEEDED(tryLookUp(member, id));
}

DISPID LateBoundObject::lookUp(const wchar_t* member) const {
    if (!mObject) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    DISPID id = DISPID_UNKNOWN;
    const HRESULT outcome = tryLookUp(member, id);
    if (FAILED(outcome)) {
        EXCEPINFO none = {};
        throw automationError(outcome, none, mObject.get());
    }
    return id;
}

HRESULT LateBoundObject::tryLookUp(const wchar_t* member, DISPID& id) const {
    const ComPtr<IDispatch> keepAlive = mObject;
    HRESULT outcome = E_NOTIMPL;
    if (mObjectEx) {
        const BSTR text = newBstr(reinterpret_cast<const char16_t*>(member));
        outcome = mObjectEx->GetDispID(text, fdexNameCaseSensitive, &id);
        SysFreeString(text);
    }
    if (FAILED(outcome)) {
        auto* spelling = const_cast<LPOLESTR>(member);
        outcome = mObject->GetIDsOfNames(IID_NULL, &spelling, 1, kNeutral, &id);
    }
    return outcome;
}

Variant LateBoundObject::invoke(const wchar_t* member, WORD flags, const Variant* arguments, std::size_t count) const {
    return invoke(idOf(member), flags, arguments, count);
}

Variant LateBoundObject::invoke(DISPID id, WORD flags, const Variant* arguments, std::size_t count) const {
    if (count > kMostArguments) {
        throw RuntimeError(ErrorNumber::WrongNumberOfArguments);
    }
    const ComPtr<IDispatch> keepAlive = mObject;
    std::array<VARIANTARG, kMostArguments> reversed{};
    // Copied without taking over: the callee may change an argument only through a reference.
    std::reverse_copy(arguments, arguments + count, reversed.begin());
    DISPPARAMS parameters = {reversed.data(), nullptr, static_cast<UINT>(count), 0};
    DISPID propertyPut = DISPID_PROPERTYPUT;
    if (flags == DISPATCH_PROPERTYPUT) {
        parameters.rgdispidNamedArgs = &propertyPut;
        parameters.cNamedArgs = 1;
    }
    Variant result;
    EXCEPINFO exception = {};
    UINT badArgument = 0;
    const HRESULT outcome =
        mObject->Invoke(id, IID_NULL, kNeutral, flags, &parameters, flags == DISPATCH_PROPERTYPUT ? nullptr : &result,
                        &exception, &badArgument);
    if (FAILED(outcome)) {
        throw automationError(outcome, exception, mObject.get());
    }
    return result;
}

}  // namespace quorvel::host
