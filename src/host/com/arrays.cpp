#include "host/com/arrays.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "core/run_time_error.h"
#include "host/com/automation_error.h"
#include "host/com/late_bound_object.h"

namespace quorvel::host {

namespace {

void check(HRESULT outcome) {
    if (FAILED(outcome)) {
        throw RuntimeError(errorNumberOf(outcome));
    }
}

SAFEARRAY* safeArrayOf(const VARIANT& value) {
    if ((value.vt & VT_ARRAY) == 0) {
        return nullptr;
    }
    return (value.vt & VT_BYREF) != 0 ? *value.pparray : value.parray;
}

/// The object behind a value that may be a script's array.
IDispatch* objectOf(const VARIANT& value) {
    if (value.vt == VT_DISPATCH) {
        return value.pdispVal;
    }
    return value.vt == (VT_BYREF | VT_DISPATCH) ? *value.ppdispVal : nullptr;
}

bool isMissing(const VARIANT& value) {
    if (value.vt == VT_EMPTY || value.vt == VT_NULL || value.vt == VT_ERROR || isNullReference(value)) {
        return true;
    }
    return (value.vt & ~VT_BYREF) == VT_DISPATCH && objectOf(value) == nullptr;
}

/// The elements of a safe array, each in a variant and back. They are locked, so that a host that is called on
/// the way cannot take them away; and they are found by their place, since the platform's own functions refuse
/// some indexes next to the largest number. A null array has none.
class LockedElements {
public:
    explicit LockedElements(SAFEARRAY* array) : mArray(array) {
        if (array == nullptr) {
            return;
        }
        if (SafeArrayGetDim(array) != 1) {
            throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
        }
        check(SafeArrayGetVartype(array, &mType));
        // Records and decimals do not fit where the simple values of a variant stand.
        const bool isSimple = mType != VT_RECORD && array->cbElements <= sizeof(VARIANT::llVal);
        if (count() > 0 && mType != VT_VARIANT && !isSimple) {
            throw RuntimeError(ErrorNumber::TypeMismatch);
        }
        check(SafeArrayLock(array));
    }
    LockedElements(const LockedElements&) = delete;
    LockedElements& operator=(const LockedElements&) = delete;
    ~LockedElements() {
        if (mArray != nullptr) {
            SafeArrayUnlock(mArray);
        }
    }

    std::size_t count() const { return mArray != nullptr ? mArray->rgsabound[0].cElements : 0; }

    Variant get(std::size_t i) const {
        Variant value;
        if (mType == VT_VARIANT) {
            check(VariantCopy(&value, variant(i)));
        } else {
            VARIANT element = {};
            element.vt = static_cast<VARTYPE>(VT_BYREF | mType);
            element.byref = place(i);
            check(VariantCopyInd(&value, &element));
        }
        return value;
    }

    void put(std::size_t i, const Variant& value) const {
        // What was there ends with the variant that it changes places with.
        Variant content;
        if (mType == VT_VARIANT) {
            check(VariantCopy(&content, const_cast<Variant*>(&value)));
            std::swap(static_cast<VARIANT&>(content), *variant(i));
            return;
        }
        check(convert(value, mType, content));
        auto* const bytes = reinterpret_cast<std::byte*>(&content.llVal);
        std::swap_ranges(bytes, bytes + mArray->cbElements, place(i));
    }

private:
    /// Error 9 beyond the end.
    std::byte* place(std::size_t i) const {
        if (i >= count()) {
            throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
        }
        return static_cast<std::byte*>(mArray->pvData) + i * mArray->cbElements;
    }
    VARIANT* variant(std::size_t i) const { return reinterpret_cast<VARIANT*>(place(i)); }

    SAFEARRAY* mArray;
    VARTYPE mType = VT_EMPTY;
};

template <class Element, class Detach>
Variant arrayOf(VARTYPE type, std::vector<Variant>& values, Detach detach) {
    Variant result;
    result.parray = SafeArrayCreateVector(type, 0, static_cast<ULONG>(values.size()));
    if (result.parray == nullptr) {
        throw std::bad_alloc();
    }
    result.vt = static_cast<VARTYPE>(VT_ARRAY | type);
    Element* elements = nullptr;
    check(SafeArrayAccessData(result.parray, reinterpret_cast<void**>(&elements)));
    std::transform(values.begin(), values.end(), elements, detach);
    check(SafeArrayUnaccessData(result.parray));
    return result;
}

}  // namespace

Variant arrayOfVariants(std::vector<Variant> values) {
    return arrayOf<VARIANT>(VT_VARIANT, values, [](Variant& value) { return value.detach(); });
}

Variant typedArrayOf(VARTYPE type, std::vector<Variant> values) {
    switch (type) {
        case VT_BSTR: return arrayOf<BSTR>(type, values, [](Variant& value) { return value.detach().bstrVal; });
        case VT_DISPATCH:
            return arrayOf<IDispatch*>(type, values, [](Variant& value) { return value.detach().pdispVal; });
        case VT_BOOL: return arrayOf<VARIANT_BOOL>(type, values, [](Variant& value) { return value.boolVal; });
        default: throw RuntimeError(ErrorNumber::TypeMismatch);
    }
}

Variant referenceToArray(Variant& array) {
    Variant reference;
    reference.vt = static_cast<VARTYPE>(VT_BYREF | array.vt);
    reference.pparray = &array.parray;
    return reference;
}

Variant arrayOfFlags(const std::vector<bool>& values) {
    std::vector<Variant> variants;
    for (const bool value : values) {
        variants.emplace_back(value);
    }
    return arrayOfVariants(std::move(variants));
}

Variant arrayOfTexts(const std::vector<Text>& values) {
    std::vector<Variant> variants;
    variants.reserve(values.size());
    for (const Text& value : values) {
        variants.emplace_back(TextView(value));
    }
    return arrayOfVariants(std::move(variants));
}

std::vector<Variant> elementsOf(const VARIANT& array) {
    const VARIANT& direct = dereferenced(array);
    std::vector<Variant> elements;
    if (isMissing(direct)) {
        return elements;
    }
    if (IDispatch* script = objectOf(direct)) {
        const LateBoundObject object(script, u"an array");
        Variant length;
        check(convert(object.get(L"length"), VT_I4, length));
        // The length is what the object says it is, and its elements have 16-bit indexes everywhere.
        if (length.lVal > INT16_MAX) {
            throw RuntimeError(ErrorNumber::Overflow);
        }
        for (LONG i = 0; i < length.lVal; ++i) {
            elements.push_back(object.element(i));
        }
        return elements;
    }
    SAFEARRAY* values = safeArrayOf(direct);
    if (values == nullptr && (direct.vt & VT_ARRAY) == 0) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    const LockedElements locked(values);
    for (std::size_t i = 0; i < locked.count(); ++i) {
        elements.push_back(locked.get(i));
    }
    return elements;
}

void assignElements(VARIANT& array, const std::vector<Variant>& values) {
    if (values.empty()) {
        return;
    }
    auto& direct = const_cast<VARIANT&>(dereferenced(array));
    if (IDispatch* script = objectOf(direct)) {
        const LateBoundObject object(script, u"an array");
        for (std::size_t i = 0; i < values.size(); ++i) {
            Variant copy;
            check(VariantCopy(&copy, const_cast<Variant*>(&values[i])));
            object.putElement(static_cast<std::int32_t>(i), std::move(copy));
        }
        return;
    }
    SAFEARRAY* target = safeArrayOf(direct);
    if (target == nullptr) {
        throw RuntimeError((direct.vt & VT_ARRAY) != 0 ? ErrorNumber::SubscriptOutOfRange : ErrorNumber::TypeMismatch);
    }
    const LockedElements locked(target);
    for (std::size_t i = 0; i < values.size(); ++i) {
        locked.put(i, values[i]);
    }
}

}  // namespace quorvel::host
