#pragma once

#include <cstdint>
#include <span>

#include "core/text.h"
#include "forms/late_object.h"

/// How a form is declared: rows of constant tables, of which the engine makes windows. Rows stand in the order of
/// reading, which is the order of the Tab key and of what lies above what.
namespace quorvel::forms {

class Form;

enum class ControlKind : std::uint8_t {
    Label,
    /// Groups the rows that name it; a caption draws a border round them.
    Frame,
    TextBox,
    /// Shows italics and quotation marks as the reference will; written to by the user only where its row says so.
    RichText,
    OptionButton,
    CheckBox,
    Button,
    ListBox,
    ComboBox,
    /// The two arrows beside a text box.
    UpDown,
};

/// The index of a control that is none of an array.
inline constexpr std::int16_t kNoIndex = -1;

/// Where a control stands, in dialog units of the platform, relative to its frame. Controls that name the same line
/// stand beside each other, centred; lines stand below each other in the order of their rows, and one without a visible
/// control closes up.
struct Place {
    std::int16_t line = 0;
    std::int16_t x = 0;
    std::int16_t width = 0;
    /// 0 for the height that is usual for the kind; a frame is as high as what it holds. Of a label, the greatest: it
    /// is as high as its lines.
    std::int16_t height = 0;
};

/// A control. The functions below make the rows, and the members refine them.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding): in the order in which rows are read
struct ControlRow {
    ControlKind kind = ControlKind::Label;
    TextView name;
    std::int16_t index = kNoIndex;
    /// With "&" before the mnemonic.
    TextView caption;
    Place place;
    /// The name of the frame that the control stands in; empty for the form itself.
    TextView frame;
    /// Option buttons of one group exclude each other.
    std::uint8_t group = 0;
    /// One or two fields separated by ","; see `GetTag`.
    TextView tag;
    /// The help text that the host shows.
    TextView toolTip;
    /// Of an UpDown: the text box beside which it stands, with the same index.
    TextView buddy;
    /// Of a screen reader's name, where no label stands before the control.
    TextView accessibleName;
    /// Of text boxes, in which Enter is a new line then, and of the captions of options and check boxes.
    bool isMultiLine = false;
    bool isReadOnly = false;
    bool isHidden = false;

    constexpr ControlRow in(TextView name) const {
        ControlRow row = *this;
        row.frame = name;
        return row;
    }
    constexpr ControlRow grouped(std::uint8_t number) const {
        ControlRow row = *this;
        row.group = number;
        return row;
    }
    constexpr ControlRow tagged(TextView fields) const {
        ControlRow row = *this;
        row.tag = fields;
        return row;
    }
    constexpr ControlRow hint(TextView text) const {
        ControlRow row = *this;
        row.toolTip = text;
        return row;
    }
    constexpr ControlRow spoken(TextView text) const {
        ControlRow row = *this;
        row.accessibleName = text;
        return row;
    }
    constexpr ControlRow multiLine() const {
        ControlRow row = *this;
        row.isMultiLine = true;
        return row;
    }
    constexpr ControlRow readOnly() const {
        ControlRow row = *this;
        row.isReadOnly = true;
        return row;
    }
    /// Not to be seen until the form says so.
    constexpr ControlRow hidden() const {
        ControlRow row = *this;
        row.isHidden = true;
        return row;
    }
};

/// The name of a control, with its index where it is one of an array. A text alone names one that is not.
struct ControlName {
    constexpr ControlName(TextView text, std::int16_t position = kNoIndex) : name(text), index(position) {}
    template <std::size_t N>
    constexpr ControlName(const char16_t (&text)[N], std::int16_t position = kNoIndex)
        : name(text, N - 1), index(position) {}

    TextView name;
    std::int16_t index;
};

constexpr ControlRow controlRow(ControlKind kind, const ControlName& which, TextView caption, const Place& place) {
    ControlRow row;
    row.kind = kind;
    row.name = which.name;
    row.index = which.index;
    row.caption = caption;
    row.place = place;
    return row;
}
constexpr ControlRow label(const ControlName& which, TextView caption, const Place& place) {
    return controlRow(ControlKind::Label, which, caption, place);
}
constexpr ControlRow frame(const ControlName& which, TextView caption, const Place& place) {
    return controlRow(ControlKind::Frame, which, caption, place);
}
constexpr ControlRow textBox(const ControlName& which, const Place& place) {
    return controlRow(ControlKind::TextBox, which, {}, place);
}
constexpr ControlRow richText(const ControlName& which, const Place& place) {
    return controlRow(ControlKind::RichText, which, {}, place);
}
constexpr ControlRow option(const ControlName& which, TextView caption, const Place& place) {
    return controlRow(ControlKind::OptionButton, which, caption, place);
}
constexpr ControlRow checkBox(const ControlName& which, TextView caption, const Place& place) {
    return controlRow(ControlKind::CheckBox, which, caption, place);
}
constexpr ControlRow button(const ControlName& which, TextView caption, const Place& place) {
    return controlRow(ControlKind::Button, which, caption, place);
}
constexpr ControlRow listBox(const ControlName& which, const Place& place) {
    return controlRow(ControlKind::ListBox, which, {}, place);
}
constexpr ControlRow comboBox(const ControlName& which, const Place& place) {
    return controlRow(ControlKind::ComboBox, which, {}, place);
}
/// Stands at the right end of its buddy, whose line it shares.
constexpr ControlRow upDown(const ControlName& which, TextView buddy) {
    ControlRow row = controlRow(ControlKind::UpDown, which, {}, {});
    row.buddy = buddy;
    return row;
}

/// Another name by which a control is known to hosts: `from` to `to` of the new name are the same indexes of the old
/// one, or one control of it.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding): in the order in which rows are read
struct ControlAlias {
    TextView alias;
    /// kNoIndex when the new name has no index.
    std::int16_t from = kNoIndex;
    std::int16_t to = kNoIndex;
    TextView name;
    /// The index that `from` has under the old name.
    std::int16_t first = kNoIndex;
};

/// A property that hosts find at a form besides the protocol and the controls. What it throws is reported.
struct FormMember {
    TextView name;
    /// Null when it cannot be read.
    Value (*get)(Form& form, LateObject::Arguments indexes) = nullptr;
    /// Null when it cannot be written. The new value stands behind the indexes.
    void (*put)(Form& form, LateObject::Arguments indexesAndValue) = nullptr;
    std::size_t indexes = 0;
};

/// A form as it is declared.
struct FormDesign {
    /// The name of its class: "YearForm".
    TextView className;
    /// Its own name for the element, with which its caption begins.
    TextView title;
    std::span<const ControlRow> controls;
    std::span<const ControlAlias> aliases;
    std::span<const FormMember> members = {};
    /// The box in which a user would type first.
    ControlName firstBox = TextView();
    /// The place of `isRTF` among the parameters of the element's `toString`; -1 where it has none.
    std::int16_t rtfParameter = -1;
    /// Whether the preview is the model's: it is an element of its own, which reads what this one writes.
    bool isPreviewedByModel = false;
    /// Whether the preview of the output stands above the buttons.
    bool hasPreview = true;
};

/// All forms are as wide, in dialog units; what they hold leaves the margins free.
inline constexpr std::int16_t kFormWidth = 240;
inline constexpr std::int16_t kMargin = 7;
inline constexpr std::int16_t kContentWidth = kFormWidth - 2 * kMargin;
/// What a character of a caption takes at most, on the average.
inline constexpr std::int16_t kCharacterWidth = 4;

}  // namespace quorvel::forms
