#include "host/com/variant.h"

#include <algorithm>
#include <limits>
#include <new>

#include "host/com/com_ptr.h"

namespace quorvel::host {

namespace {

constexpr LCID kUsEnglish = 0x0409;

// An object's value may be an object again; one that is its own value would lead nowhere.
constexpr int kMostDefaultValues = 4;

/// Puts an object's default value, the member without a name, in its place.
HRESULT toDefaultValue(Variant& value) {
    for (int step = 0; value.vt == VT_DISPATCH && value.pdispVal != nullptr; ++step) {
        if (step == kMostDefaultValues) {
            return DISP_E_TYPEMISMATCH;
        }
        Variant answer;
        DISPPARAMS none = {};
        const HRESULT outcome = value.pdispVal->Invoke(DISPID_VALUE, IID_NULL, kUsEnglish, DISPATCH_PROPERTYGET, &none,
                                                       &answer, nullptr, nullptr);
        if (FAILED(outcome)) {
            return DISP_E_TYPEMISMATCH;
        }
        Variant direct;
        const HRESULT copied = VariantCopyInd(&direct, const_cast<VARIANT*>(&dereferenced(answer)));
        if (FAILED(copied)) {
            return copied;
        }
        value = std::move(direct);
    }
    return S_OK;
}

/// An object of which nothing is known as one that has members; Nothing stays Nothing.
HRESULT toDispatch(Variant& value) {
    Variant object(queryFor<IDispatch>(value.punkVal, IID_IDispatch).get());
    const bool isLost = object.pdispVal == nullptr && value.punkVal != nullptr;
    value = std::move(object);
    return isLost ? DISP_E_TYPEMISMATCH : S_OK;
}

}  // namespace

BSTR newBstr(TextView text) {
    if (text.size() > std::numeric_limits<UINT>::max() / sizeof(OLECHAR) - sizeof(OLECHAR)) {
        throw std::bad_alloc();
    }
    BSTR result = SysAllocStringLen(nullptr, static_cast<UINT>(text.size()));
    if (result == nullptr) {
        throw std::bad_alloc();
    }
    std::copy(text.begin(), text.end(), result);
    return result;
}

const VARIANT& dereferenced(const VARIANT& value) {
    const VARIANT* target = &value;
    // A variant that refers to itself would lead nowhere; two steps are all that OLE Automation allows.
    for (int step = 0; step < 2 && target->vt == (VT_BYREF | VT_VARIANT) && target->pvarVal != nullptr; ++step) {
        target = target->pvarVal;
    }
    return *target;
}

HRESULT convert(const VARIANT& value, VARTYPE type, Variant& result) {
    if (isNullReference(dereferenced(value))) {
        return DISP_E_TYPEMISMATCH;
    }
    Variant direct;
    HRESULT outcome = VariantCopyInd(&direct, const_cast<VARIANT*>(&dereferenced(value)));
    if (SUCCEEDED(outcome) && direct.vt == VT_UNKNOWN && type == VT_DISPATCH) {
        outcome = toDispatch(direct);
    } else if (SUCCEEDED(outcome) && type != VT_DISPATCH && type != VT_UNKNOWN) {
        outcome = toDefaultValue(direct);
    }
    if (SUCCEEDED(outcome) && direct.vt != type) {
        outcome = VariantChangeTypeEx(&direct, &direct, kUsEnglish, VARIANT_ALPHABOOL, type);
    }
    if (SUCCEEDED(outcome)) {
        result = std::move(direct);
    }
    return outcome;
}

}  // namespace quorvel::host
