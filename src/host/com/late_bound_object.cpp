#include "host/com/late_bound_object.h"

#include <algorithm>
#include <string>

#include "host/com/automation_error.h"

namespace quorvel::host {

namespace {

// Host members are looked up in no particular language.
constexpr LCID kNeutral = LOCALE_NEUTRAL;

constexpr std::size_t kMostArguments = 8;

constexpr WORD kCall = DISPATCH_METHOD | DISPATCH_PROPERTYGET;

constexpr TextView kScriptEngine = u"Microsoft VBScript";

ComPtr<IDispatch> faceOf(IDispatch* object, const IID& face) {
    ComPtr<IDispatch> found = face != IID_IDispatch ? queryFor<IDispatch>(object, face) : ComPtr<IDispatch>();
    return found ? found : ComPtr<IDispatch>(object);
}

}  // namespace

LateBoundObject::LateBoundObject(IDispatch* object, const char16_t* role, const IID& face)
    : mRole(role), mHostObject(object), mObject(faceOf(object, face)) {
    if (mObject.get() == object) {
        mObjectEx = queryFor<IDispatchEx>(object, IID_IDispatchEx);
    }
}

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
    const std::wstring member = std::to_wstring(index);
    return invoke(lookUp(member.c_str()), member.c_str(), DISPATCH_PROPERTYGET, nullptr, 0);
}

void LateBoundObject::putElement(std::int32_t index, Variant value) const {
    const std::wstring member = std::to_wstring(index);
    invoke(lookUp(member.c_str()), member.c_str(), DISPATCH_PROPERTYPUT, &value, 1);
}

std::size_t LateBoundObject::indexOf(const wchar_t* member) const {
    const std::wstring_view name = member;
    const auto known = std::find_if(mMembers.begin(), mMembers.end(), [&](const Member& m) { return m.name == name; });
    if (known != mMembers.end()) {
        return static_cast<std::size_t>(known - mMembers.begin());
    }
    const DISPID id = lookUp(member);
    mMembers.push_back({name, id});
    return mMembers.size() - 1;
}

bool LateBoundObject::has(const wchar_t* member) const {
    DISPID id = DISPID_UNKNOWN;
    return mObject && SUCCEEDED(tryLookUp(member, id));
}

DISPID LateBoundObject::lookUp(const wchar_t* member) const {
    if (!mObject) {
        throw RuntimeError(ErrorNumber::ObjectNotSet, descriptionOf(ErrorNumber::ObjectNotSet, named(member)));
    }
    DISPID id = DISPID_UNKNOWN;
    const HRESULT outcome = tryLookUp(member, id);
    if (FAILED(outcome)) {
        throw automationError(outcome, ExceptionInfo(), mObject.get(), named(member));
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
    return invoke(mMembers[indexOf(member)].id, member, flags, arguments, count);
}

Variant LateBoundObject::invoke(DISPID id, const wchar_t* member, WORD flags, const Variant* arguments,
                                std::size_t count) const {
    if (count > kMostArguments) {
        throw RuntimeError(ErrorNumber::WrongNumberOfArguments);
    }
    const ComPtr<IDispatch> keepAlive = mObject;
    Variant result;
    ExceptionInfo exception;
    const HRESULT outcome = tryInvoke(id, flags, arguments, count, result, exception);
    if (FAILED(outcome)) {
        throw automationError(outcome, exception, keepAlive.get(), named(member));
    }
    return result;
}

Variant LateBoundObject::invokeWithOptional(const wchar_t* member, std::size_t required, std::size_t given,
                                            const Variant* arguments, std::size_t all) const {
    const ComPtr<IDispatch> keepAlive = mObject;
    const std::size_t index = indexOf(member);
    const DISPID id = mMembers[index].id;
    const std::size_t first = mMembers[index].onlyCount != 0 ? mMembers[index].onlyCount : given;
    Variant result;
    ExceptionInfo exception;
    const HRESULT outcome = tryInvoke(id, kCall, arguments, first, result, exception);
    if (SUCCEEDED(outcome)) {
        mMembers[index].accepted |= 1U << first;
        return result;
    }
    const bool isRefused = (mMembers[index].accepted & 1U << first) == 0 && isRefusalOfCount(outcome, exception);
    for (std::size_t count = all; isRefused && count >= required; --count) {
        if (count == first) {
            continue;
        }
        Variant otherResult;
        ExceptionInfo otherException;
        const HRESULT otherOutcome = tryInvoke(id, kCall, arguments, count, otherResult, otherException);
        if (FAILED(otherOutcome) && isRefusalOfCount(otherOutcome, otherException)) {
            continue;
        }
        mMembers[index].onlyCount = count;
        if (FAILED(otherOutcome)) {
            throw automationError(otherOutcome, otherException, keepAlive.get(), named(member));
        }
        return otherResult;
    }
    throw automationError(outcome, exception, keepAlive.get(), named(member));
}

HRESULT LateBoundObject::tryInvoke(DISPID id, WORD flags, const Variant* arguments, std::size_t count, Variant& result,
                                   ExceptionInfo& exception) const {
    std::array<VARIANTARG, kMostArguments> reversed{};
    // Copied without taking over: the callee may change an argument only through a reference.
    std::reverse_copy(arguments, arguments + count, reversed.begin());
    DISPPARAMS parameters = {reversed.data(), nullptr, static_cast<UINT>(count), 0};
    DISPID propertyPut = DISPID_PROPERTYPUT;
    if (flags == DISPATCH_PROPERTYPUT) {
        parameters.rgdispidNamedArgs = &propertyPut;
        parameters.cNamedArgs = 1;
    }
    UINT badArgument = 0;
    const HRESULT outcome =
        mObject->Invoke(id, IID_NULL, kNeutral, flags, &parameters, flags == DISPATCH_PROPERTYPUT ? nullptr : &result,
                        &exception, &badArgument);
    if (outcome == DISP_E_EXCEPTION) {
        exception.complete();
    }
    return outcome;
}

Text LateBoundObject::named(const wchar_t* member) const {
    return concatenate({reinterpret_cast<const char16_t*>(member), u" of ", mRole});
}

/// Whether the call itself was refused for its number of arguments, so that nothing of the member ran.
bool LateBoundObject::isRefusalOfCount(HRESULT outcome, const ExceptionInfo& exception) const {
    if (outcome == DISP_E_BADPARAMCOUNT || outcome == DISP_E_PARAMNOTOPTIONAL || outcome == DISP_E_PARAMNOTFOUND) {
        return true;
    }
    if (!mObjectEx) {
        return false;
    }
    // VBScript raises its error 450, which its procedure may have raised inside as well; but a procedure that ran
    // with one number of arguments refuses each other one. Wine's engine fails without a word, which no error from
    // inside does there.
    const bool isWordless = outcome == E_FAIL && exception.scode == 0 && exception.wCode == 0;
    const bool isVBScript = outcome != DISP_E_EXCEPTION || view(exception.bstrSource).starts_with(kScriptEngine);
    constexpr auto kWrongNumber = static_cast<std::int32_t>(ErrorNumber::WrongNumberOfArguments);
    return isWordless || (isVBScript && numberOf(outcome, exception) == kWrongNumber);
}

}  // namespace quorvel::host
