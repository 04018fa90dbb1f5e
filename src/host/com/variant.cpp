#include "host/com/variant.h"

#include <algorithm>
#include <limits>
#include <new>

namespace quorvel::host {

namespace {

constexpr LCID kUsEnglish = 0x0409;

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
    if (SUCCEEDED(outcome) && direct.vt != type) {
        outcome = VariantChangeTypeEx(&direct, &direct, kUsEnglish, VARIANT_ALPHABOOL, type);
    }
    if (SUCCEEDED(outcome)) {
        result = std::move(direct);
    }
    return outcome;
}

}  // namespace quorvel::host
