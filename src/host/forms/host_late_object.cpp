#include "host/forms/host_late_object.h"

#include <algorithm>
#include <variant>
#include <vector>

#include "core/run_time_error.h"
#include "host/com/answers.h"
#include "host/com/arrays.h"
#include "host/com/automation_error.h"

namespace quorvel::host {

namespace {

using forms::LateObjectRef;
using forms::Value;

// What tells a script's array from its other objects.
constexpr wchar_t kLength[] = L"length";

/// A name as the platform writes it.
const wchar_t* wide(const char16_t* member) {
    return reinterpret_cast<const wchar_t*>(member);
}

struct AsVariant {
    Variant operator()(std::monostate /*value*/) const { return {}; }
    Variant operator()(bool value) const { return Variant(value); }
    Variant operator()(std::int32_t value) const { return Variant(value); }
    Variant operator()(const Text& value) const { return Variant(TextView(value)); }
    Variant operator()(const std::vector<Text>& value) const { return arrayOfTexts(value); }
    Variant operator()(const LateObjectRef& value) const { return Variant(dispatchOf(value.get())); }
};

std::vector<Variant> variantsOf(forms::LateObject::Arguments values) {
    std::vector<Variant> variants;
    variants.reserve(values.size());
    std::transform(values.begin(), values.end(), std::back_inserter(variants), variantOf);
    return variants;
}

Variant converted(const VARIANT& value, VARTYPE type) {
    Variant result;
    const HRESULT outcome = convert(value, type, result);
    if (FAILED(outcome)) {
        throw RuntimeError(errorNumberOf(outcome));
    }
    return result;
}

Value textValue(const VARIANT& value) {
    return Value(textAnswer(value));
}

/// "2.5" stays what it is, where a whole number would round it.
Value realValue(const VARIANT& value) {
    Variant whole;
    if (SUCCEEDED(convert(value, VT_I4, whole)) && converted(value, VT_R8).dblVal == static_cast<double>(whole.lVal)) {
        return Value(std::int32_t{whole.lVal});
    }
    return textValue(value);
}

Value textsValue(const VARIANT& array) {
    std::vector<Text> texts;
    for (const Variant& element : elementsOf(array)) {
        texts.push_back(textAnswer(element));
    }
    return Value(std::move(texts));
}

Value objectValue(const VARIANT& value) {
    const ComPtr<IDispatch> object = objectAnswer(value);
    const bool isArray = object && LateBoundObject(object.get()).has(kLength);
    return isArray ? textsValue(Variant(object.get())) : Value(HostLateObject::of(object.get()));
}

}  // namespace

Variant variantOf(const Value& value) {
    return std::visit(AsVariant(), value.storage());
}

Value valueOf(const VARIANT& value) {
    const VARIANT& named = dereferenced(value);
    if (isNullReference(named)) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    if ((named.vt & VT_ARRAY) != 0) {
        return textsValue(named);
    }
    switch (named.vt & ~VT_BYREF) {
        case VT_EMPTY:
        case VT_NULL:
        case VT_ERROR: return {};
        case VT_BOOL: return Value(flagAnswer(named));
        case VT_I1:
        case VT_UI1:
        case VT_I2:
        case VT_UI2:
        case VT_I4:
        case VT_UI4:
        case VT_INT:
        case VT_UINT:
        case VT_I8:
        case VT_UI8: return Value(std::int32_t{converted(named, VT_I4).lVal});
        case VT_R4:
        case VT_R8:
        case VT_CY:
        case VT_DECIMAL: return realValue(named);
        case VT_DISPATCH:
        case VT_UNKNOWN: return objectValue(named);
        default: return textValue(named);
    }
}

LateObjectRef HostLateObject::of(IDispatch* object) {
    return object != nullptr ? std::make_shared<const HostLateObject>(object) : nullptr;
}

Value HostLateObject::get(const char16_t* member) const {
    return valueOf(mObject.get(wide(member)));
}

Value HostLateObject::call(const char16_t* member, Arguments arguments) const {
    return valueOf(mObject.callWith(wide(member), variantsOf(arguments)));
}

Value HostLateObject::callInOut(const char16_t* member, std::span<Value> arguments) const {
    std::vector<Variant> variables = variantsOf(arguments);
    std::vector<Variant> references;
    references.reserve(variables.size());
    std::transform(variables.begin(), variables.end(), std::back_inserter(references), Variant::referenceTo);
    Value result = valueOf(mObject.callWith(wide(member), references));
    std::transform(variables.begin(), variables.end(), arguments.begin(), valueOf);
    return result;
}

void HostLateObject::put(const char16_t* member, Arguments indexesAndValue) const {
    mObject.putWith(wide(member), variantsOf(indexesAndValue));
}

}  // namespace quorvel::host
