#include "host/forms/control_object.h"

#include <algorithm>
#include <iterator>

#include "core/run_time_error.h"

namespace quorvel::host {

namespace {

using forms::Control;
using forms::ControlKind;
using Target = ControlObject::Target;
using Arguments = NamedArguments;

// Sets of kinds.
using Kinds = std::uint16_t;
constexpr Kinds only(ControlKind kind) {
    return static_cast<Kinds>(1U << static_cast<unsigned>(kind));
}
template <class... More>
constexpr Kinds only(ControlKind kind, More... more) {
    return static_cast<Kinds>(only(kind) | only(more...));
}
constexpr Kinds kEvery = 0xFFFF;
constexpr Kinds kRich = only(ControlKind::RichText);
constexpr Kinds kBoxes = only(ControlKind::TextBox, ControlKind::RichText, ControlKind::ComboBox);
constexpr Kinds kLists = only(ControlKind::ListBox, ControlKind::ComboBox);
constexpr Kinds kChoices = only(ControlKind::OptionButton, ControlKind::CheckBox);
constexpr Kinds kClicked = only(ControlKind::Button) | kChoices;
constexpr Kinds kLabels = only(ControlKind::Label, ControlKind::Frame);
constexpr Kinds kUpDowns = only(ControlKind::UpDown);

bool contains(Kinds kinds, ControlKind kind) {
    return (kinds & only(kind)) != 0;
}

// --- The members that are more than a line.

std::int32_t tabIndexOf(const Target& target) {
    const auto& controls = target.form.controls();
    const auto at = std::find_if(controls.begin(), controls.end(),
                                 [&](const Control& control) { return &control == &target.control; });
    return static_cast<std::int32_t>(at - controls.begin());
}

/// The selection within the text, whatever the window says.
forms::Selection selectionOf(const Target& target) {
    const auto length = static_cast<std::int32_t>(target.control.text().size());
    const forms::Selection told = target.form.view().selection(target.control);
    const std::int32_t start = std::clamp(told.start, 0, length);
    return {start, std::clamp(told.length, 0, length - start)};
}

Text selectedText(const Target& target) {
    const forms::Selection selection = selectionOf(target);
    return target.control.text().substr(static_cast<std::size_t>(selection.start),
                                        static_cast<std::size_t>(selection.length));
}

void select(const Target& target, std::int32_t start, std::int32_t length) {
    const auto end = static_cast<std::int32_t>(target.control.text().size());
    const std::int32_t first = std::clamp(start, 0, end);
    target.form.view().setSelection(target.control, {first, std::clamp(length, 0, end - first)});
}

/// Behind the new text nothing is selected, as after typing.
void replaceSelection(const Target& target, const Text& replacement) {
    const forms::Selection selection = selectionOf(target);
    Text text = target.control.text();
    text.replace(static_cast<std::size_t>(selection.start), static_cast<std::size_t>(selection.length), replacement);
    target.control.setText(text);
    if (!target.form.isClosed()) {
        select(target, selection.start + static_cast<std::int32_t>(replacement.size()), 0);
    }
}

Variant buddyOf(const Target& target) {
    const forms::ControlRow& row = target.control.row();
    Control* const buddy = target.form.find({row.buddy, row.index});
    return Variant(buddy != nullptr ? target.controls.objectOf(*buddy).get() : nullptr);
}

Variant spin(const Target& target, bool isUp) {
    target.form.userSpun(target.control, isUp);
    return {};
}

const Text& itemAt(const Target& target, std::int32_t index) {
    if (index < 0) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    }
    return target.control.items().at(static_cast<std::size_t>(index));
}

// --- The members, and the kinds that have them.

struct Row : NamedRow<Target> {
    Kinds kinds = kEvery;
    /// Of these kinds it stands for the control itself.
    Kinds defaultOf = 0;
};

constexpr Row of(Kinds kinds, const NamedRow<Target>& row, Kinds defaultOf = 0) {
    return {row, kinds, defaultOf};
}
using Member = NamedRow<Target>;

// One member a line where it fits.
// clang-format off
constexpr Row kMembers[] = {
    of(kEvery, Member::property(u"Name", VT_BSTR, [](Target& t, const Arguments&) { return Variant(t.control.name()); })),
    of(kEvery, Member::property(u"Index", VT_I2, [](Target& t, const Arguments&) { return Variant(t.control.index()); })),
    of(kEvery, Member::property(u"Tag", VT_BSTR, [](Target& t, const Arguments&) { return Variant(TextView(t.control.tag())); },
                    [](Target& t, const Arguments& a) { t.control.setTag(a.text(a.newValue())); })),
    of(kEvery, Member::property(u"hwnd", VT_I4, [](Target& t, const Arguments&) { return handleVariant(t.form.view().handle(t.control)); })),
    of(kEvery, Member::property(u"Left", VT_R4, [](Target& t, const Arguments&) { return Variant(t.control.place().left); })),
    of(kEvery, Member::property(u"Top", VT_R4, [](Target& t, const Arguments&) { return Variant(t.control.place().top); })),
    of(kEvery, Member::property(u"Width", VT_R4, [](Target& t, const Arguments&) { return Variant(t.control.place().width); })),
    of(kEvery, Member::property(u"Height", VT_R4, [](Target& t, const Arguments&) { return Variant(t.control.place().height); })),
    of(kEvery, Member::property(u"Visible", VT_BOOL, [](Target& t, const Arguments&) { return Variant(t.control.isShown()); },
                    [](Target& t, const Arguments& a) { t.control.setVisible(a.flag(a.newValue())); })),
    of(kEvery, Member::property(u"Enabled", VT_BOOL, [](Target& t, const Arguments&) { return Variant(t.control.isEnabled()); },
                    [](Target& t, const Arguments& a) { t.control.setEnabled(a.flag(a.newValue())); })),
    of(kEvery, Member::property(u"ForeColor", VT_I4,
                    [](Target& t, const Arguments&) { return Variant(static_cast<std::int32_t>(t.control.foreColor())); },
                    [](Target& t, const Arguments& a) { t.control.setForeColor(a.bits(a.newValue())); })),
    of(kEvery, Member::property(u"ToolTipText", VT_BSTR, [](Target& t, const Arguments&) { return Variant(TextView(t.control.toolTip())); },
                    [](Target& t, const Arguments& a) { t.control.setToolTip(a.text(a.newValue())); })),
    of(kEvery, Member::property(u"TabIndex", VT_I4, [](Target& t, const Arguments&) { return Variant(tabIndexOf(t)); })),
    of(kEvery, Member::method(u"SetFocus", 0, 0,
                    [](Target& t, const Arguments&) { t.form.view().setFocus(t.control); return Variant(); })),

    of(kBoxes, Member::property(u"Text", VT_BSTR, [](Target& t, const Arguments&) { return Variant(TextView(t.control.text())); },
                    [](Target& t, const Arguments& a) { t.control.setText(a.text(a.newValue())); }), kBoxes),
    of(only(ControlKind::ListBox),
       Member::property(u"Text", VT_BSTR, [](Target& t, const Arguments&) { return Variant(TextView(t.control.text())); }),
       only(ControlKind::ListBox)),
    of(kBoxes, Member::property(u"SelStart", VT_I4, [](Target& t, const Arguments&) { return Variant(selectionOf(t).start); },
                    [](Target& t, const Arguments& a) { select(t, a.number(a.newValue()), 0); })),
    of(kBoxes, Member::property(u"SelLength", VT_I4, [](Target& t, const Arguments&) { return Variant(selectionOf(t).length); },
                    [](Target& t, const Arguments& a) { select(t, selectionOf(t).start, a.number(a.newValue())); })),
    of(kBoxes, Member::property(u"SelText", VT_BSTR, [](Target& t, const Arguments&) { return Variant(TextView(selectedText(t))); },
                    [](Target& t, const Arguments& a) { replaceSelection(t, a.text(a.newValue())); })),
    of(kRich, Member::property(u"TextRTF", VT_BSTR, [](Target& t, const Arguments&) { return Variant(TextView(t.control.rtf())); },
                   [](Target& t, const Arguments& a) { t.control.setRtf(a.text(a.newValue())); })),

    of(kLabels | kClicked, Member::property(u"Caption", VT_BSTR, [](Target& t, const Arguments&) { return Variant(TextView(t.control.caption())); },
                                [](Target& t, const Arguments& a) { t.control.setCaption(a.text(a.newValue())); }), kLabels),
    of(kChoices, Member::property(u"Value", VT_BOOL, [](Target& t, const Arguments&) { return Variant(t.control.value()); },
                      [](Target& t, const Arguments& a) { t.control.setValue(a.flag(a.newValue())); }), kChoices),
    of(kClicked, Member::method(u"Click", 0, 0,
                      [](Target& t, const Arguments&) { t.form.userClicked(t.control); return Variant(); })),

    of(kLists, Member::property(u"ListCount", VT_I4,
                    [](Target& t, const Arguments&) { return Variant(static_cast<std::int32_t>(t.control.items().size())); })),
    of(kLists, Member::indexedProperty(u"List", VT_BSTR, 1, 1,
                    [](Target& t, const Arguments& a) { return Variant(TextView(itemAt(t, a.number(0)))); })),
    of(kLists, Member::property(u"ListIndex", VT_I4, [](Target& t, const Arguments&) { return Variant(t.control.listIndex()); },
                    [](Target& t, const Arguments& a) { t.control.setListIndex(a.number(a.newValue())); })),

    of(kUpDowns, Member::method(u"UpClick", 0, 0, [](Target& t, const Arguments&) { return spin(t, true); })),
    of(kUpDowns, Member::method(u"DownClick", 0, 0, [](Target& t, const Arguments&) { return spin(t, false); })),
    of(kUpDowns, Member::property(u"BuddyControl", VT_DISPATCH, [](Target& t, const Arguments&) { return buddyOf(t); })),
};
// clang-format on

const Row* rowOf(DISPID id, ControlKind kind) {
    const Row* const row = rowAt(std::span<const Row>(kMembers), id);
    return row != nullptr && contains(row->kinds, kind) ? row : nullptr;
}

}  // namespace

DISPID ControlObject::idOf(TextView name) {
    const auto* const row = std::find_if(std::begin(kMembers), std::end(kMembers), [&](const Row& candidate) {
        return contains(candidate.kinds, mKind) && equalsIgnoringCase(candidate.name, name);
    });
    return row != std::end(kMembers) ? static_cast<DISPID>(row - std::begin(kMembers) + 1) : DISPID_UNKNOWN;
}

std::optional<NamedMember> ControlObject::memberOf(DISPID id) {
    const Row* const row = rowOf(id, mKind);
    return row != nullptr ? std::optional(memberIn<Target>(*row)) : std::nullopt;
}

TextView ControlObject::defaultMember() const {
    const auto* const row = std::find_if(std::begin(kMembers), std::end(kMembers),
                                         [&](const Row& candidate) { return contains(candidate.defaultOf, mKind); });
    return row != std::end(kMembers) ? row->name : TextView();
}

Variant ControlObject::read(DISPID id, const NamedArguments& arguments) {
    const std::shared_ptr<forms::Form> form = mControls->form();
    Target target = {*form, mControl, *mControls};
    Variant value = rowOf(id, mKind)->read(target, arguments);
    form->hostChanged();
    return value;
}

void ControlObject::write(DISPID id, const NamedArguments& indexesAndValue) {
    const std::shared_ptr<forms::Form> form = mControls->form();
    Target target = {*form, mControl, *mControls};
    rowOf(id, mKind)->write(target, indexesAndValue);
    form->hostChanged();
}

void ControlObject::writeDefault(const NamedArguments& value) {
    const Row* const row = rowOf(idOf(defaultMember()), mKind);
    if (row == nullptr || row->write == nullptr) {
        throw RuntimeError(ErrorNumber::NoSuchMember);
    }
    write(static_cast<DISPID>(row - std::begin(kMembers) + 1), value);
}

void writeValueOf(const ComPtr<IDispatch>& object, const NamedArguments& indexesAndValue) {
    auto* const control = dynamic_cast<ControlObject*>(object.get());
    if (control == nullptr) {
        throw RuntimeError(ErrorNumber::NoSuchMember);
    }
    control->writeDefault(indexesAndValue);
}

}  // namespace quorvel::host
