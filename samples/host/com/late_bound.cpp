#include "com/late_bound.h"

#include <cstdio>
#include <span>

namespace sample {

namespace {

/// Frees what a callee put into the record.
struct ExceptionInfo : EXCEPINFO {
    ExceptionInfo() : EXCEPINFO{} {}
    ExceptionInfo(const ExceptionInfo&) = delete;
    ExceptionInfo& operator=(const ExceptionInfo&) = delete;
    ~ExceptionInfo() {
        SysFreeString(bstrSource);
        SysFreeString(bstrDescription);
        SysFreeString(bstrHelpFile);
    }
};

struct FailureText {
    HRESULT code;
    const wchar_t* text;
};

// Failures of a call by name, for which not every system has a text.
constexpr FailureText kFailureTexts[] = {
    {DISP_E_UNKNOWNNAME, L"There is no member or argument of this name."},
    {DISP_E_MEMBERNOTFOUND, L"The member cannot be called in this way."},
    {DISP_E_BADPARAMCOUNT, L"The number of arguments is wrong."},
    {DISP_E_PARAMNOTFOUND, L"An argument is missing."},
    {DISP_E_PARAMNOTOPTIONAL, L"An argument that is not optional is missing."},
    {DISP_E_TYPEMISMATCH, L"An argument has the wrong type."},
    {DISP_E_NONAMEDARGS, L"The member takes no named arguments."},
};

Variant valueOrThrow(CallResult result) {
    if (!result.ok()) throw ComError{result.code, result.error};
    return std::move(result.value);
}

/// @param namedIds the ids of the named arguments
CallResult invoke(IDispatch* object, const std::wstring& member, DISPID id, WORD kinds,
                  std::span<const Variant> arguments, std::span<const NamedArgument> namedArguments = {},
                  DISPID* namedIds = nullptr) {
    // The array is the list read backwards: named arguments first, then the others, last one first.
    std::vector<VARIANT> passed;
    passed.reserve(arguments.size() + namedArguments.size());
    for (const NamedArgument& argument : namedArguments) passed.push_back(argument.value.get());
    for (std::size_t i = arguments.size(); i > 0; --i) passed.push_back(arguments[i - 1].get());
    DISPID putId = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{};
    parameters.cArgs = static_cast<UINT>(passed.size());
    parameters.rgvarg = passed.data();
    parameters.cNamedArgs = static_cast<UINT>(namedArguments.size());
    parameters.rgdispidNamedArgs = namedIds;
    if (kinds == DISPATCH_PROPERTYPUT) {
        parameters.cNamedArgs = 1;
        parameters.rgdispidNamedArgs = &putId;
    }

    CallResult result;
    ExceptionInfo exception;
    UINT badArgument = 0;
    VARIANT* value = kinds == DISPATCH_PROPERTYPUT ? nullptr : &result.value.get();
    result.code =
        object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kinds, &parameters, value, &exception, &badArgument);
    if (result.code == DISP_E_EXCEPTION) {
        if (exception.pfnDeferredFillIn != nullptr) exception.pfnDeferredFillIn(&exception);
        const HRESULT cause = FAILED(exception.scode) ? exception.scode : result.code;
        result.error =
            member + L": " +
            (exception.bstrDescription != nullptr ? std::wstring(exception.bstrDescription) : describe(cause));
    } else if (FAILED(result.code)) {
        result.error = member + L": " + describe(result.code);
        if (result.code == DISP_E_TYPEMISMATCH || result.code == DISP_E_PARAMNOTFOUND) {
            const bool isNamed = badArgument < namedArguments.size();
            result.error += L" Argument: " +
                            (isNamed ? namedArguments[badArgument].name : std::to_wstring(passed.size() - badArgument));
        }
    }
    return result;
}

CallResult failure(HRESULT code, const std::wstring& member, const std::wstring& why) {
    return {code, Variant(), member + L": " + why};
}

}  // namespace

std::wstring describe(HRESULT code) {
    for (const FailureText& known : kFailureTexts) {
        if (known.code == code) return known.text;
    }
    wchar_t* text = nullptr;
    const DWORD length =
        FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                       nullptr, static_cast<DWORD>(code), 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    std::wstring words(text != nullptr ? text : L"", length);
    LocalFree(text);
    while (!words.empty() && words.back() <= L' ') words.pop_back();
    wchar_t number[16];
    swprintf(number, 16, L"0x%08lX", static_cast<unsigned long>(code));
    return words.empty() ? L"failure " + std::wstring(number) : words + L" (" + number + L")";
}

LateBoundObject LateBoundObject::create(const std::wstring& className) {
    CLSID classId;
    HRESULT code = CLSIDFromProgID(className.c_str(), &classId);
    if (FAILED(code)) throw ComError{code, className + L" is not registered on this computer."};
    ComPointer<IDispatch> object;
    code = CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.putVoid());
    if (FAILED(code)) throw ComError{code, className + L" cannot be created: " + describe(code)};
    return LateBoundObject(object);
}

Variant LateBoundObject::call(const std::wstring& member, const std::vector<Variant>& arguments) const {
    return valueOrThrow(tryCall(member, DISPATCH_METHOD, arguments));
}

Variant LateBoundObject::callNamed(const std::wstring& member, const std::vector<NamedArgument>& arguments) const {
    return valueOrThrow(tryCall(member, DISPATCH_METHOD, {}, arguments));
}

Variant LateBoundObject::get(const std::wstring& property, const std::vector<Variant>& indexes) const {
    // An indexed property may be a method at the other side, a plain one must not be asked as one:
    // script objects refuse that for their data members.
    const WORD kinds = indexes.empty() ? DISPATCH_PROPERTYGET : DISPATCH_METHOD | DISPATCH_PROPERTYGET;
    return valueOrThrow(tryCall(property, kinds, indexes));
}

void LateBoundObject::put(const std::wstring& property, const Variant& value,
                          const std::vector<Variant>& indexes) const {
    std::vector<Variant> arguments = indexes;
    arguments.push_back(value);
    valueOrThrow(tryCall(property, DISPATCH_PROPERTYPUT, arguments));
}

LateBoundMember LateBoundObject::member(const std::wstring& name) const {
    if (!mObject) throw ComError{E_POINTER, name + L": There is no object."};
    auto* spelling = const_cast<wchar_t*>(name.c_str());
    DISPID id = DISPID_UNKNOWN;
    const HRESULT code = mObject->GetIDsOfNames(IID_NULL, &spelling, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(code)) throw ComError{code, name + L": " + describe(code)};
    return {mObject, name, id};
}

Variant LateBoundMember::operator()(std::initializer_list<Variant> arguments) const {
    return valueOrThrow(invoke(mObject.get(), mName, mId, DISPATCH_METHOD, {arguments.begin(), arguments.size()}));
}

CallResult LateBoundObject::tryCall(const std::wstring& member, WORD kinds, const std::vector<Variant>& arguments,
                                    const std::vector<NamedArgument>& namedArguments) const {
    if (!mObject) return failure(E_POINTER, member, L"There is no object.");

    // The member's name first, then those of the named arguments.
    std::vector<LPOLESTR> names{const_cast<wchar_t*>(member.c_str())};
    for (const NamedArgument& argument : namedArguments) names.push_back(const_cast<wchar_t*>(argument.name.c_str()));
    std::vector<DISPID> ids(names.size(), DISPID_UNKNOWN);
    const HRESULT code = mObject->GetIDsOfNames(IID_NULL, names.data(), static_cast<UINT>(names.size()),
                                                LOCALE_USER_DEFAULT, ids.data());
    if (FAILED(code)) {
        std::wstring unknown = member;
        for (std::size_t i = 1; i < ids.size() && ids[0] != DISPID_UNKNOWN; ++i) {
            if (ids[i] == DISPID_UNKNOWN) unknown = member + L"(" + namedArguments[i - 1].name + L" := ...)";
        }
        return failure(code, unknown, describe(code));
    }
    return invoke(mObject.get(), member, ids[0], kinds, arguments, namedArguments, ids.data() + 1);
}

}  // namespace sample
