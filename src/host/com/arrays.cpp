#include "host/com/arrays.h"

#include <algorithm>
#include <cstdint>

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

/// An element of a safe array in a variant and back.
class ElementType {
public:
    explicit ElementType(SAFEARRAY* array) : mArray(array) {
        check(SafeArrayGetVartype(array, &mType));
        // Records and decimals do not fit where the simple values of a variant stand.
        if (mType != VT_VARIANT && SafeArrayGetElemsize(array) > sizeof(VARIANT::llVal)) {
            throw RuntimeError(ErrorNumber::TypeMismatch);
        }
    }

    Variant get(LONG index) const {
        Variant value;
        if (mType == VT_VARIANT) {
            check(SafeArrayGetElement(mArray, &index, &value));
        } else {
            check(SafeArrayGetElement(mArray, &index, &value.llVal));
            value.vt = mType;
        }
        return value;
    }
    void put(LONG index, const Variant& value) const {
        if (mType == VT_VARIANT) {
            check(SafeArrayPutElement(mArray, &index, const_cast<Variant*>(&value)));
            return;
        }
        Variant converted;
        check(convert(value, mType, converted));
        // Strings and objects are passed themselves, everything else by its place.
        const bool isPointer = mType == VT_BSTR || mType == VT_DISPATCH || mType == VT_UNKNOWN;
        check(SafeArrayPutElement(mArray, &index, isPointer ? converted.byref : &converted.llVal));
    }

private:
    SAFEARRAY* mArray;
    VARTYPE mType = VT_EMPTY;
};

struct Bounds {
    LONG lower = 0;
    LONG upper = -1;
};

Bounds boundsOf(SAFEARRAY* array) {
    Bounds bounds;
    if (array != nullptr) {
        if (SafeArrayGetDim(array) != 1) {
            throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
        }
        check(SafeArrayGetLBound(array, 1, &bounds.lower));
        check(SafeArrayGetUBound(array, 1, &bounds.upper));
    }
    return bounds;
}

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
        const LateBoundObject object(script);
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
    const Bounds bounds = boundsOf(values);
    if (bounds.lower <= bounds.upper) {
        const ElementType type(values);
        for (LONG i = bounds.lower; i <= bounds.upper; ++i) {
            elements.push_back(type.get(i));
        }
    }
    return elements;
}

void assignElements(VARIANT& array, const std::vector<Variant>& values) {
    if (values.empty()) {
        return;
    }
    auto& direct = const_cast<VARIANT&>(dereferenced(array));
    if (IDispatch* script = objectOf(direct)) {
        const LateBoundObject object(script);
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
    const LONG lower = boundsOf(target).lower;
    const ElementType type(target);
    for (std::size_t i = 0; i < values.size(); ++i) {
        type.put(lower + static_cast<LONG>(i), values[i]);
    }
}

}  // namespace quorvel::host
