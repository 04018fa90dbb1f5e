#include "host/forms/form_object.h"

#include <algorithm>
#include <iterator>

#include "core/procedure.h"
#include "forms/common_ui_functions.h"
#include "host/com/answers.h"
#include "host/com/com_object.h"
#include "host/forms/control_collections.h"
#include "host/forms/control_object.h"
#include "host/forms/host_late_object.h"

namespace quorvel::host {

namespace {

using forms::Form;
using forms::Rectangle;
using forms::Twips;
using Arguments = NamedArguments;

// Where the numbers of a form's further members and of its controls begin, behind those of the table.
constexpr DISPID kFirstFurther = 1000;
constexpr DISPID kFirstControl = 2000;

/// The window of an owner: 0 without one. An owner that does not tell is reported, and none.
std::intptr_t windowOf(FormObject& object, IDispatch* owner) {
    try {
        return owner != nullptr ? handleAnswer(LateBoundObject(owner).get(L"hWnd")) : 0;
    } catch (...) {
        reportCurrentException(object.form(), u"Show");
    }
    return 0;
}

Variant initialize(FormObject& object, const Arguments& a) {
    const ComPtr<IDispatch> callback = a.object(0);
    const Text productName = a.text(1);
    const ComPtr<IDispatch> icon = a.object(2);
    object.keepIcon(icon);
    object.form().Initialize(HostLateObject::of(callback.get()), productName, HostLateObject::of(icon.get()));
    return {};
}

Variant parentWidgetChanged(FormObject& object, const Arguments& a) {
    const ComPtr<IDispatch> element = a.object(0);
    const ComPtr<IDispatch> model = a.object(1);
    object.form().ParentWidgetChanged(HostLateObject::of(element.get()), HostLateObject::of(model.get()), a.text(2),
                                      a.text(3));
    return {};
}

/// Modeless, whatever the first argument says.
Variant show(FormObject& object, const Arguments& a) {
    object.form().Show(windowOf(object, a.object(1).get()));
    return {};
}

template <Twips Rectangle::*side>
Variant placeOf(FormObject& object, const Arguments& /*none*/) {
    return Variant(object.form().place().*side);
}

template <Twips Rectangle::*side>
void setPlace(FormObject& object, const Arguments& a) {
    const Twips value = a.real(a.newValue());
    Rectangle place = object.form().place();
    place.*side = value;
    object.form().setPlace(place);
}

Variant move(FormObject& object, const Arguments& a) {
    constexpr Twips Rectangle::*kSides[] = {&Rectangle::left, &Rectangle::top, &Rectangle::width, &Rectangle::height};
    Rectangle place = object.form().place();
    for (std::size_t i = 0; i < std::size(kSides); ++i) {
        if (a.has(i)) {
            place.*kSides[i] = a.real(i);
        }
    }
    object.form().setPlace(place);
    return {};
}

void setVisible(FormObject& object, const Arguments& a) {
    if (a.flag(a.newValue())) {
        object.form().reveal();
    } else {
        object.form().Hide();
    }
}

void setIcon(FormObject& object, const Arguments& a) {
    const ComPtr<IDispatch> icon = a.object(a.newValue());
    object.keepIcon(icon);
    forms::CommonUIFunctions::SetFormIcon(object.form(), HostLateObject::of(icon.get()));
}

/// A procedure of the form without arguments.
template <void (Form::*procedure)()>
Variant run(FormObject& object, const Arguments& /*none*/) {
    (object.form().*procedure)();
    return {};
}

using Member = NamedRow<FormObject>;

// One member a line where it fits.
// clang-format off
constexpr Member kMemberRows[] = {
    Member::method(u"Initialize", 3, 3, initialize),
    Member::method(u"ParentWidgetChanged", 3, 4, parentWidgetChanged),
    Member::method(u"PrimePump", 0, 0, run<&Form::PrimePump>),
    Member::method(u"UpdateOutput", 0, 0, run<&Form::UpdateOutput>),
    Member::method(u"toString", 0, 3, [](FormObject& o, const Arguments& a) {
        return Variant(TextView(o.form().toString(a.flag(0), a.flag(1), a.flag(2)))); }, VT_BSTR),
    Member::method(u"Show", 0, 2, show),
    Member::method(u"Hide", 0, 0, run<&Form::Hide>),
    Member::method(u"SetFocus", 0, 0, run<&Form::SetFocus>),
    Member::method(u"Unload", 0, 0, run<&Form::Unload>),
    Member::method(u"Move", 1, 4, move),
    Member::property(u"Name", VT_BSTR, [](FormObject& o, const Arguments&) { return Variant(o.form().className()); }),
    Member::property(u"hwnd", VT_I4, [](FormObject& o, const Arguments&) { return handleVariant(o.form().hwnd()); }),
    Member::property(u"Left", VT_R4, placeOf<&Rectangle::left>, setPlace<&Rectangle::left>),
    Member::property(u"Top", VT_R4, placeOf<&Rectangle::top>, setPlace<&Rectangle::top>),
    Member::property(u"Width", VT_R4, placeOf<&Rectangle::width>, setPlace<&Rectangle::width>),
    Member::property(u"Height", VT_R4, placeOf<&Rectangle::height>, setPlace<&Rectangle::height>),
    Member::property(u"ScaleWidth", VT_R4, [](FormObject& o, const Arguments&) { return Variant(o.form().scale().width); }),
    Member::property(u"ScaleHeight", VT_R4, [](FormObject& o, const Arguments&) { return Variant(o.form().scale().height); }),
    Member::property(u"Caption", VT_BSTR, [](FormObject& o, const Arguments&) { return Variant(TextView(o.form().Caption())); },
                     [](FormObject& o, const Arguments& a) { o.form().setCaption(a.text(a.newValue())); }),
    Member::property(u"Visible", VT_BOOL, [](FormObject& o, const Arguments&) { return Variant(o.form().isVisible()); }, setVisible),
    Member::property(u"Enabled", VT_BOOL, [](FormObject& o, const Arguments&) { return Variant(o.form().isEnabled()); },
                     [](FormObject& o, const Arguments& a) { o.form().setEnabled(a.flag(a.newValue())); }),
    Member::property(u"Icon", VT_DISPATCH, [](FormObject& o, const Arguments&) { return Variant(o.icon().get()); }, setIcon),
    Member::indexedProperty(u"Controls", VT_DISPATCH, 0, 2,
            [](FormObject& o, const Arguments& a) { return Variant(controlBy(o.controls(), a).get()); },
            [](FormObject& o, const Arguments& a) { writeValueOf(controlBy(o.controls(), a.indexes()), a); }),
};
// clang-format on

constexpr std::span<const Member> kMembers = kMemberRows;
static_assert(kMembers.size() < kFirstFurther);

std::vector<forms::Value> valuesOf(const Arguments& arguments, std::size_t least) {
    if (arguments.size() < least) {
        throw RuntimeError(ErrorNumber::ArgumentNotOptional);
    }
    std::vector<forms::Value> values;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        values.push_back(valueOf(arguments[i]));
    }
    return values;
}

}  // namespace

void FormObject::released() noexcept {
    if (!mForm->isClosed()) {
        const HostCall bracket(this);
        mForm->Unload();
    }
}

DISPID FormObject::idOf(TextView name) {
    if (const DISPID id = idIn(kMembers, name); id != DISPID_UNKNOWN) {
        return id;
    }
    const auto isNamed = [&](TextView candidate) { return equalsIgnoringCase(candidate, name); };
    const std::span<const forms::FormMember> further = mForm->design().members;
    const auto member =
        std::find_if(further.begin(), further.end(), [&](const auto& row) { return isNamed(row.name); });
    if (member != further.end()) {
        return kFirstFurther + static_cast<DISPID>(member - further.begin());
    }
    const auto known = std::find_if(mControlNames.begin(), mControlNames.end(), isNamed);
    const auto place = static_cast<DISPID>(known - mControlNames.begin());
    if (known == mControlNames.end()) {
        if (!mControls->has(name)) {
            return DISPID_UNKNOWN;
        }
        mControlNames.emplace_back(name);
    }
    return kFirstControl + place;
}

const forms::FormMember* FormObject::furtherMember(DISPID id) const {
    const std::span<const forms::FormMember> further = mForm->design().members;
    return id >= kFirstFurther ? rowAt(further, id - kFirstFurther + 1) : nullptr;
}

const Text* FormObject::controlName(DISPID id) const {
    const auto place = static_cast<std::size_t>(id - kFirstControl);
    return id >= kFirstControl && place < mControlNames.size() ? &mControlNames[place] : nullptr;
}

std::optional<NamedMember> FormObject::memberOf(DISPID id) {
    if (const auto* const row = rowAt(kMembers, id)) {
        return memberIn(*row);
    }
    if (const auto* const further = furtherMember(id)) {
        return NamedMember{further->name,           VT_EMPTY, false,           further->get != nullptr,
                           further->put != nullptr, 0,        further->indexes};
    }
    if (const Text* const name = controlName(id)) {
        return NamedMember{*name, VT_DISPATCH, false, true, true, 0, 1};
    }
    return std::nullopt;
}

Variant FormObject::read(DISPID id, const NamedArguments& arguments) {
    if (const auto* const row = rowAt(kMembers, id)) {
        return row->read(*this, arguments);
    }
    if (const auto* const further = furtherMember(id)) {
        return variantOf(further->get(*mForm, valuesOf(arguments, further->indexes)));
    }
    const Text name = *controlName(id);
    const ComPtr<IDispatch> object =
        arguments.has(0) ? mControls->element(name, arguments.number(0)) : mControls->named(name);
    return Variant(object.get());
}

void FormObject::write(DISPID id, const NamedArguments& indexesAndValue) {
    if (const auto* const row = rowAt(kMembers, id)) {
        row->write(*this, indexesAndValue);
        return;
    }
    if (const auto* const further = furtherMember(id)) {
        further->put(*mForm, valuesOf(indexesAndValue, further->indexes + 1));
        mForm->hostChanged();
        return;
    }
    const Text name = *controlName(id);
    const ComPtr<IDispatch> object =
        indexesAndValue.newValue() > 0 ? mControls->element(name, indexesAndValue.number(0)) : mControls->named(name);
    writeValueOf(object, indexesAndValue);
}

}  // namespace quorvel::host
