#include "com/variant.h"

#include <utility>

namespace sample {

namespace {

constexpr LCID kEnglish = 0x409;

void check(HRESULT code, const wchar_t* what) {
    if (FAILED(code)) throw ComError{code, what};
}

VARIANT converted(const VARIANT& value, VARTYPE type) {
    VARIANT direct;
    VariantInit(&direct);
    check(VariantCopyInd(&direct, const_cast<VARIANT*>(&value)), L"The value cannot be read.");
    const HRESULT code = VariantChangeTypeEx(&direct, &direct, kEnglish, VARIANT_ALPHABOOL, type);
    if (FAILED(code)) {
        VariantClear(&direct);
        throw ComError{code, L"The value has another type."};
    }
    return direct;
}

SAFEARRAY* arrayIn(const VARIANT& value) {
    const VARIANT* direct = &value;
    if (direct->vt == (VT_BYREF | VT_VARIANT)) direct = direct->pvarVal;
    if ((direct->vt & VT_ARRAY) == 0) throw ComError{DISP_E_TYPEMISMATCH, L"The value is not an array."};
    SAFEARRAY* array = (direct->vt & VT_BYREF) != 0 ? *direct->pparray : direct->parray;
    if (array != nullptr && SafeArrayGetDim(array) != 1) {
        throw ComError{DISP_E_BADINDEX, L"The array has more than one dimension."};
    }
    return array;
}

VARTYPE elementType(SAFEARRAY* array) {
    VARTYPE type = VT_EMPTY;
    check(SafeArrayGetVartype(array, &type), L"The array has elements of no known type.");
    return type;
}

}  // namespace

Variant::Variant(std::int16_t value) noexcept : Variant() {
    mValue.vt = VT_I2;
    mValue.iVal = value;
}

Variant::Variant(std::int32_t value) noexcept : Variant() {
    mValue.vt = VT_I4;
    mValue.lVal = value;
}

Variant::Variant(std::wstring_view text) : Variant() {
    mValue.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (mValue.bstrVal == nullptr) throw ComError{E_OUTOFMEMORY, L"Out of memory."};
    mValue.vt = VT_BSTR;
}

Variant::Variant(IDispatch* object) noexcept : Variant() {
    mValue.vt = VT_DISPATCH;
    mValue.pdispVal = object;
    if (object != nullptr) object->AddRef();
}

Variant Variant::copyOf(const VARIANT& value) {
    Variant copy;
    check(VariantCopyInd(&copy.mValue, const_cast<VARIANT*>(&value)), L"The value cannot be copied.");
    return copy;
}

Variant Variant::missing() noexcept {
    Variant value;
    value.mValue.vt = VT_ERROR;
    value.mValue.scode = DISP_E_PARAMNOTFOUND;
    return value;
}

Variant Variant::byReference(BSTR& text) noexcept {
    Variant value;
    value.mValue.vt = VT_BYREF | VT_BSTR;
    value.mValue.pbstrVal = &text;
    return value;
}

Variant Variant::byReference(VARIANT& variable) noexcept {
    Variant value;
    value.mValue.vt = VT_BYREF | VT_VARIANT;
    value.mValue.pvarVal = &variable;
    return value;
}

Variant Variant::byReference(SAFEARRAY*& array, VARTYPE elementType) noexcept {
    Variant value;
    value.mValue.vt = static_cast<VARTYPE>(VT_BYREF | VT_ARRAY | elementType);
    value.mValue.pparray = &array;
    return value;
}

Variant Variant::array(const std::vector<Variant>& elements) {
    Variant value;
    value.mValue.parray = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(elements.size()));
    if (value.mValue.parray == nullptr) throw ComError{E_OUTOFMEMORY, L"Out of memory."};
    value.mValue.vt = VT_ARRAY | VT_VARIANT;
    LONG index = 0;
    for (const Variant& element : elements) assignElement(value.mValue, index++, element);
    return value;
}

Variant::Variant(const Variant& other) : Variant() {
    check(VariantCopy(&mValue, const_cast<VARIANT*>(&other.mValue)), L"The value cannot be copied.");
}

Variant::Variant(Variant&& other) noexcept : mValue(other.mValue) {
    VariantInit(&other.mValue);
}

Variant& Variant::operator=(Variant other) noexcept {
    std::swap(mValue, other.mValue);
    return *this;
}

VARIANT Variant::release() noexcept {
    const VARIANT content = mValue;
    VariantInit(&mValue);
    return content;
}

std::wstring textOf(const VARIANT& value) {
    VARIANT text = converted(value, VT_BSTR);
    std::wstring result(text.bstrVal, SysStringLen(text.bstrVal));
    VariantClear(&text);
    return result;
}

std::int32_t numberOf(const VARIANT& value) {
    return converted(value, VT_I4).lVal;
}

bool booleanOf(const VARIANT& value) {
    return converted(value, VT_BOOL).boolVal != VARIANT_FALSE;
}

ComPointer<IDispatch> objectOf(const VARIANT& value) {
    const Variant direct = Variant::copyOf(value);
    if (direct.get().vt == VT_EMPTY || direct.get().vt == VT_NULL) return {};
    return ComPointer<IDispatch>::owning(converted(direct.get(), VT_DISPATCH).pdispVal);
}

std::vector<Variant> elementsOf(const VARIANT& value) {
    std::vector<Variant> elements;
    SAFEARRAY* array = arrayIn(value);
    if (array == nullptr) return elements;
    const VARTYPE type = elementType(array);
    LONG first = 0;
    LONG last = -1;
    check(SafeArrayGetLBound(array, 1, &first), L"The array has no lower bound.");
    check(SafeArrayGetUBound(array, 1, &last), L"The array has no upper bound.");
    for (LONG index = first; index <= last; ++index) {
        Variant element;
        VARIANT& raw = element.get();
        // The elements of an array of variants are whole VARIANTs, all others the bare value.
        void* target = type == VT_VARIANT ? static_cast<void*>(&raw) : static_cast<void*>(&raw.llVal);
        check(SafeArrayGetElement(array, &index, target), L"An element of the array cannot be read.");
        if (type != VT_VARIANT) raw.vt = type;
        elements.push_back(std::move(element));
    }
    return elements;
}

bool isMissing(const VARIANT& value) {
    return value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND;
}

void assign(VARIANT& argument, const Variant& value) {
    if ((argument.vt & VT_BYREF) == 0) {
        throw ComError{DISP_E_TYPEMISMATCH, L"The argument was not passed by reference."};
    }
    const VARTYPE type = argument.vt & static_cast<VARTYPE>(~VT_BYREF);
    if (type == VT_VARIANT) {
        check(VariantCopy(argument.pvarVal, const_cast<VARIANT*>(&value.get())), L"The argument cannot be set.");
        return;
    }
    VARIANT content = converted(value.get(), type);
    switch (type) {
        case VT_BSTR:
            SysFreeString(*argument.pbstrVal);
            *argument.pbstrVal = content.bstrVal;
            return;
        case VT_DISPATCH:
        case VT_UNKNOWN:
            if (*argument.ppunkVal != nullptr) (*argument.ppunkVal)->Release();
            *argument.ppunkVal = content.punkVal;
            return;
        case VT_BOOL: *argument.pboolVal = content.boolVal; return;
        case VT_I2: *argument.piVal = content.iVal; return;
        case VT_I4: *argument.plVal = content.lVal; return;
        default: VariantClear(&content); throw ComError{DISP_E_BADVARTYPE, L"No variable of this type can be set."};
    }
}

void assignElement(VARIANT& value, LONG index, const Variant& element) {
    SAFEARRAY* array = arrayIn(value);
    if (array == nullptr) throw ComError{DISP_E_BADINDEX, L"The array is empty."};
    const VARTYPE type = elementType(array);
    if (type == VT_VARIANT) {
        check(SafeArrayPutElement(array, &index, const_cast<VARIANT*>(&element.get())), L"No such element.");
        return;
    }
    VARIANT content = converted(element.get(), type);
    // Texts and objects are passed as they are, all other values by their address.
    void* source = &content.llVal;
    if (type == VT_BSTR || type == VT_DISPATCH || type == VT_UNKNOWN) source = content.byref;
    const HRESULT code = SafeArrayPutElement(array, &index, source);
    VariantClear(&content);
    check(code, L"No such element.");
}

}  // namespace sample
