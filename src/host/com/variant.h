#pragma once

#include "host/com/automation.h"

#include <cstdint>

#include "core/text.h"

namespace quorvel::host {

/// The text of a BSTR; the null one is empty.
inline TextView view(BSTR text) {
    return text == nullptr ? TextView() : TextView(reinterpret_cast<const char16_t*>(text), SysStringLen(text));
}

/// A new BSTR, owned by the caller; std::bad_alloc when there is no memory.
BSTR newBstr(TextView text);

inline bool asBool(VARIANT_BOOL value) {
    return value != VARIANT_FALSE;
}
inline VARIANT_BOOL asVariantBool(bool value) {
    return value ? VARIANT_TRUE : VARIANT_FALSE;
}

/// A VARIANT that frees what it holds.
class Variant : public VARIANT {
public:
    Variant() : VARIANT{} {}
    explicit Variant(TextView text) : Variant() {
        bstrVal = newBstr(text);
        vt = VT_BSTR;
    }
    explicit Variant(bool value) : Variant() {
        vt = VT_BOOL;
        boolVal = asVariantBool(value);
    }
    explicit Variant(std::int16_t value) : Variant() {
        vt = VT_I2;
        iVal = value;
    }
    explicit Variant(std::int32_t value) : Variant() {
        vt = VT_I4;
        lVal = value;
    }
    explicit Variant(std::int64_t value) : Variant() {
        vt = VT_I8;
        llVal = value;
    }
    explicit Variant(float value) : Variant() {
        vt = VT_R4;
        fltVal = value;
    }
    /// Shares the object.
    explicit Variant(IDispatch* object) : Variant() {
        vt = VT_DISPATCH;
        pdispVal = object;
        if (object != nullptr) {
            object->AddRef();
        }
    }
    /// Another name for a variant that outlives this one.
    static Variant referenceTo(VARIANT& target) {
        Variant reference;
        reference.vt = VT_BYREF | VT_VARIANT;
        reference.pvarVal = &target;
        return reference;
    }
    Variant(const Variant&) = delete;
    Variant(Variant&& other) noexcept : VARIANT(other) { VariantInit(&other); }
    Variant& operator=(Variant&& other) noexcept {
        if (this != &other) {
            VariantClear(this);
            static_cast<VARIANT&>(*this) = other;
            VariantInit(&other);
        }
        return *this;
    }
    Variant& operator=(const Variant&) = delete;
    ~Variant() { VariantClear(this); }

    /// Gives the content to the caller.
    VARIANT detach() {
        const VARIANT content = *this;
        VariantInit(this);
        return content;
    }
};

/// The variant behind all references to variants.
const VARIANT& dereferenced(const VARIANT& value);

/// Whether a value is said to be elsewhere, and nobody says where.
inline bool isNullReference(const VARIANT& value) {
    return (value.vt & VT_BYREF) != 0 && value.byref == nullptr;
}

/// A value in another variant type, as US English reads and writes it whatever the user's settings: a
/// boolean is "True" or "False", an object is its default value.
/// @return S_OK, or why the value does not convert; then `result` stays empty.
HRESULT convert(const VARIANT& value, VARTYPE type, Variant& result);

}  // namespace quorvel::host
