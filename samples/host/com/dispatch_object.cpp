#include "com/dispatch_object.h"

#include <vector>

namespace sample {

namespace {

// Known to this program alone: an object that answers it is a DispatchObject of ours.
constexpr GUID kOwnObject = {0x6f1d0f52, 0x3a0e, 0x4d6b, {0x9c, 0x55, 0x2f, 0x7b, 0x61, 0xd0, 0xa4, 0x13}};

bool isSameName(const std::wstring& left, const wchar_t* right) {
    return CompareStringOrdinal(left.c_str(), -1, right, -1, TRUE) == CSTR_EQUAL;
}

HRESULT raise(EXCEPINFO* exception, HRESULT code, const std::wstring& message) {
    if (exception == nullptr) return code;
    *exception = EXCEPINFO{};
    exception->scode = code;
    exception->bstrSource = SysAllocString(L"SampleHost");
    exception->bstrDescription = SysAllocString(message.c_str());
    return DISP_E_EXCEPTION;
}

}  // namespace

long DispatchObject::sLiveObjects = 0;

VARIANT& Arguments::operator[](std::size_t index) const {
    if (index >= size()) throw ComError{DISP_E_BADPARAMCOUNT, L"An argument is missing."};
    return *mArguments[index];
}

DispatchObject::Member& DispatchObject::member(std::wstring name) {
    for (Member& existing : mMembers) {
        if (isSameName(existing.name, name.c_str())) return existing;
    }
    return mMembers.emplace_back(Member{std::move(name), nullptr, nullptr});
}

void DispatchObject::addMethod(std::wstring name, Function function) {
    member(std::move(name)).get = std::move(function);
}

void DispatchObject::addSetter(std::wstring name, Function function) {
    member(std::move(name)).set = std::move(function);
}

DispatchObject* DispatchObject::behind(IUnknown* object) {
    void* own = nullptr;
    if (object == nullptr || FAILED(object->QueryInterface(kOwnObject, &own))) return nullptr;
    auto* found = static_cast<DispatchObject*>(own);
    found->Release();
    return found;
}

HRESULT DispatchObject::QueryInterface(REFIID id, void** object) {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (id == kOwnObject) {
        *object = this;
    } else if (id == IID_IUnknown || id == IID_IDispatch) {
        *object = static_cast<IDispatch*>(this);
    } else {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

ULONG DispatchObject::Release() {
    const ULONG left = --mReferences;
    if (left == 0) delete this;
    return left;
}

HRESULT DispatchObject::GetTypeInfoCount(UINT* count) {
    if (count == nullptr) return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT DispatchObject::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    return DISP_E_BADINDEX;
}

HRESULT DispatchObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
    // Only the member has an id: our members take their arguments by position.
    for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
    for (std::size_t i = 0; i < mMembers.size(); ++i) {
        if (isSameName(mMembers[i].name, names[0])) ids[0] = static_cast<DISPID>(i) + 1;
    }
    return ids[0] == DISPID_UNKNOWN || count > 1 ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT DispatchObject::Invoke(DISPID id, REFIID, LCID, WORD kinds, DISPPARAMS* parameters, VARIANT* result,
                               EXCEPINFO* exception, UINT*) {
    if (parameters == nullptr) return E_INVALIDARG;
    if (id < 1 || static_cast<std::size_t>(id) > mMembers.size()) return DISP_E_MEMBERNOTFOUND;
    const bool isSet = (kinds & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    const Member& member = mMembers[static_cast<std::size_t>(id) - 1];
    // A copy, since the call may end or change this object.
    const Function function = isSet ? member.set : member.get;
    if (!function) return DISP_E_MEMBERNOTFOUND;
    const bool isNamed = isSet ? parameters->cNamedArgs > 1 : parameters->cNamedArgs > 0;
    if (isNamed) return DISP_E_NONAMEDARGS;
    const ComPointer<IDispatch> alive(this);

    std::vector<VARIANT*> natural;
    for (UINT i = parameters->cArgs; i > 0; --i) {
        VARIANT* argument = &parameters->rgvarg[i - 1];
        // A variable of a caller without types may itself hold a reference.
        while (argument->vt == (VT_BYREF | VT_VARIANT) && (argument->pvarVal->vt & VT_BYREF) != 0) {
            argument = argument->pvarVal;
        }
        natural.push_back(argument);
    }
    Variant answer;
    HRESULT code = E_FAIL;
    try {
        code = function(Arguments(natural), answer.get());
    } catch (const ComError& error) {
        return raise(exception, error.code, error.message);
    } catch (...) {
        return raise(exception, E_FAIL, L"The host failed.");
    }
    if (SUCCEEDED(code) && result != nullptr) *result = answer.release();
    return code;
}

}  // namespace sample
