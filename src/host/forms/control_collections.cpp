#include "host/forms/control_collections.h"

#include "core/run_time_error.h"
#include "host/com/enumerator.h"
#include "host/forms/control_object.h"

namespace quorvel::host {

namespace {

using Arguments = NamedArguments;

constexpr TextView kItem = u"Item";

VARIANT given(const ComPtr<IDispatch>& object) {
    return Variant(object.get()).detach();
}

Variant enumeration(std::vector<ComPtr<IDispatch>> objects) {
    using Objects = Enumerator<IEnumVARIANT, VARIANT, ComPtr<IDispatch>, given>;
    Variant result;
    result.punkVal = Objects::over(std::move(objects)).detach();
    result.vt = VT_UNKNOWN;
    return result;
}

Variant objectValue(const ComPtr<IDispatch>& object) {
    return Variant(object.get());
}

bool isText(const VARIANT& argument) {
    return (dereferenced(argument).vt & ~VT_BYREF) == VT_BSTR;
}

// --- Controls

using ControlsMember = NamedRow<const FormControlsRef>;
using ArrayMember = NamedRow<ControlArray>;

// clang-format off
constexpr ControlsMember kControlsMembers[] = {
    ControlsMember::indexedProperty(kItem, VT_DISPATCH, 1, 2,
            [](const FormControlsRef& t, const Arguments& a) { return objectValue(controlBy(t, a)); },
            [](const FormControlsRef& t, const Arguments& a) { writeValueOf(controlBy(t, a.indexes()), a); }),
    ControlsMember::property(u"Count", VT_I4, [](const FormControlsRef& t, const Arguments&) { return Variant(t->count()); }),
    ControlsMember::property(u"_NewEnum", VT_UNKNOWN, [](const FormControlsRef& t, const Arguments&) { return enumeration(t->all()); }),
};

// --- An array

std::vector<ComPtr<IDispatch>> elementsOf(ControlArray& array) {
    std::vector<ComPtr<IDispatch>> objects;
    for (const std::int16_t index : array.controls().indexesOf(array.name())) {
        objects.push_back(array.controls().element(array.name(), index));
    }
    return objects;
}

constexpr ArrayMember kArrayMembers[] = {
    ArrayMember::indexedProperty(kItem, VT_DISPATCH, 1, 1,
            [](ControlArray& t, const Arguments& a) { return objectValue(t.controls().element(t.name(), a.number(0))); },
            [](ControlArray& t, const Arguments& a) { writeValueOf(t.controls().element(t.name(), a.number(0)), a); }),
    ArrayMember::property(u"Count", VT_I4, [](ControlArray& t, const Arguments&) {
        return Variant(static_cast<std::int32_t>(t.controls().indexesOf(t.name()).size())); }),
    ArrayMember::property(u"LBound", VT_I2, [](ControlArray& t, const Arguments&) { return Variant(t.controls().indexesOf(t.name()).front()); }),
    ArrayMember::property(u"UBound", VT_I2, [](ControlArray& t, const Arguments&) { return Variant(t.controls().indexesOf(t.name()).back()); }),
    ArrayMember::property(u"_NewEnum", VT_UNKNOWN, [](ControlArray& t, const Arguments&) { return enumeration(elementsOf(t)); }),
};
// clang-format on

constexpr std::span<const ControlsMember> kControls = kControlsMembers;
constexpr std::span<const ArrayMember> kArray = kArrayMembers;

template <class Target>
std::optional<NamedMember> memberAt(std::span<const NamedRow<Target>> table, DISPID id) {
    const NamedRow<Target>* const row = rowAt(table, id);
    return row != nullptr ? std::optional(memberIn(*row)) : std::nullopt;
}

}  // namespace

ComPtr<IDispatch> controlBy(const FormControlsRef& controls, const NamedArguments& arguments) {
    if (!arguments.has(0)) {
        return ComPtr<IDispatch>(new ControlsObject(controls));
    }
    if (!isText(arguments[0])) {
        return controls->at(arguments.number(0));
    }
    const Text name = arguments.text(0);
    return arguments.has(1) ? controls->element(name, arguments.number(1)) : controls->named(name);
}

DISPID ControlsObject::idOf(TextView name) {
    return idIn(kControls, name);
}

std::optional<NamedMember> ControlsObject::memberOf(DISPID id) {
    return memberAt(kControls, id);
}

Variant ControlsObject::read(DISPID id, const NamedArguments& arguments) {
    return rowAt(kControls, id)->read(mControls, arguments);
}

void ControlsObject::write(DISPID id, const NamedArguments& indexesAndValue) {
    rowAt(kControls, id)->write(mControls, indexesAndValue);
}

TextView ControlsObject::defaultMember() const {
    return kItem;
}

DISPID ControlArray::idOf(TextView name) {
    return idIn(kArray, name);
}

std::optional<NamedMember> ControlArray::memberOf(DISPID id) {
    return memberAt(kArray, id);
}

Variant ControlArray::read(DISPID id, const NamedArguments& arguments) {
    return rowAt(kArray, id)->read(*this, arguments);
}

void ControlArray::write(DISPID id, const NamedArguments& indexesAndValue) {
    rowAt(kArray, id)->write(*this, indexesAndValue);
}

TextView ControlArray::defaultMember() const {
    return kItem;
}

}  // namespace quorvel::host
