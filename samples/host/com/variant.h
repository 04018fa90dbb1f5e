#pragma once

#include <windows.h>

#include <oleauto.h>

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "com/com_pointer.h"

/// Values as Automation passes them. Late-bound calls carry nothing but VARIANTs; this file is all
/// that the host needs to make and to read them.
namespace sample {

/// A failed call or conversion, for code that has nothing better to do than to give up.
struct ComError {
    HRESULT code;
    std::wstring message;
};

/// A VARIANT that clears itself. It is made from a plain value, so that argument lists read
/// naturally: `element.call(L"toString", {false, false})`.
class Variant {
public:
    Variant() noexcept { VariantInit(&mValue); }
    // Only a real bool: a pointer must not turn into True.
    template <std::same_as<bool> Boolean>
    Variant(Boolean value) noexcept : Variant() {
        mValue.vt = VT_BOOL;
        mValue.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
    }
    Variant(std::int16_t value) noexcept;
    Variant(std::int32_t value) noexcept;
    Variant(std::wstring_view text);
    Variant(const wchar_t* text) : Variant(std::wstring_view(text)) {}
    Variant(const std::wstring& text) : Variant(std::wstring_view(text)) {}
    /// An object reference, which is counted; null is Nothing.
    Variant(IDispatch* object) noexcept;

    /// The value of any VARIANT; one by reference is followed to what it refers to.
    static Variant copyOf(const VARIANT& value);
    /// Stands for an argument that the caller leaves out.
    static Variant missing() noexcept;
    /// Passes a variable of the caller's, which the callee may change. The variable must outlive the call.
    static Variant byReference(BSTR& text) noexcept;
    static Variant byReference(VARIANT& value) noexcept;
    static Variant byReference(SAFEARRAY*& array, VARTYPE elementType) noexcept;
    /// An array of variants with lower bound 0.
    static Variant array(const std::vector<Variant>& elements);

    Variant(const Variant& other);
    Variant(Variant&& other) noexcept;
    Variant& operator=(Variant other) noexcept;
    ~Variant() { VariantClear(&mValue); }

    const VARIANT& get() const noexcept { return mValue; }
    VARIANT& get() noexcept { return mValue; }
    /// Gives the content away, as a callee does with its result.
    VARIANT release() noexcept;

private:
    VARIANT mValue;
};

/// Readers of a VARIANT, by reference or not. They convert as Visual Basic does, but always in the
/// English way ("True", a point for decimals), and throw ComError where there is nothing to convert.
std::wstring textOf(const VARIANT& value);
std::int32_t numberOf(const VARIANT& value);
bool booleanOf(const VARIANT& value);
/// Null for Nothing.
ComPointer<IDispatch> objectOf(const VARIANT& value);
/// The elements of a one-dimensional array of any type.
std::vector<Variant> elementsOf(const VARIANT& array);

inline std::wstring textOf(const Variant& value) {
    return textOf(value.get());
}
inline std::int32_t numberOf(const Variant& value) {
    return numberOf(value.get());
}
inline bool booleanOf(const Variant& value) {
    return booleanOf(value.get());
}
inline ComPointer<IDispatch> objectOf(const Variant& value) {
    return objectOf(value.get());
}
inline std::vector<Variant> elementsOf(const Variant& array) {
    return elementsOf(array.get());
}

/// Whether the caller left this argument out.
bool isMissing(const VARIANT& value);

/// Writes a value back into an argument that was passed by reference, in the type of the caller's
/// variable. An argument passed by value cannot be changed: ComError with DISP_E_TYPEMISMATCH.
void assign(VARIANT& argument, const Variant& value);

/// Writes one element of an array that was passed as an argument, in the array's own type.
void assignElement(VARIANT& array, LONG index, const Variant& value);

}  // namespace sample
