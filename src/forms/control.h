#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "core/text.h"
#include "forms/control_table.h"

namespace quorvel::forms {

class Control;

/// Twips, the unit in which hosts place forms: a twentieth of a point, 1,440 to the inch.
using Twips = float;

/// From the left upper corner of the form's client area.
struct Rectangle {
    Twips left = 0;
    Twips top = 0;
    Twips width = 0;
    Twips height = 0;

    bool operator==(const Rectangle&) const = default;
};

/// System colours as forms of hosts name them, and the red of a lit hint.
inline constexpr std::uint32_t kWindowText = 0x80000008;
inline constexpr std::uint32_t kGreyText = 0x80000011;
inline constexpr std::uint32_t kButtonText = 0x80000012;
inline constexpr std::uint32_t kRed = 255;

/// What changed of a control.
enum class Aspect : std::uint8_t { Text, Value, Caption, Visible, Enabled, ForeColor, ToolTip, Place, Items };

/// Who is told what becomes of controls: their form.
class ControlOwner {
public:
    /// An aspect has another value, by the program's doing or by the user's.
    virtual void aspectChanged(Control& control, Aspect aspect) = 0;
    /// A box has another text, or another entry of its list.
    virtual void textChanged(Control& control) = 0;
    /// A button, an option or a check box was clicked, which is also what a new `Value` is.
    virtual void clicked(Control& control) = 0;
    /// What a rich-text control shows, without the formatting.
    virtual Text plainText(const Control& control) const = 0;

protected:
    ~ControlOwner() = default;
};

/// A control as values: what the user sees is the view's, which is told each change. Writing what is there already
/// changes nothing; writing a text or a value raises the same event as the user's doing.
class Control {
public:
    Control(const ControlRow& row, ControlOwner& owner);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const ControlRow& row() const { return mRow; }
    ControlKind kind() const { return mRow.kind; }
    TextView name() const { return mRow.name; }
    std::int16_t index() const { return mRow.index; }
    bool is(const ControlName& which) const { return mRow.name == which.name && mRow.index == which.index; }
    /// The frame it stands in; null for the form itself.
    Control* frame() const { return mFrame; }

    const Text& caption() const { return mCaption; }
    void setCaption(TextView caption);
    const Text& tag() const { return mTag; }
    void setTag(TextView tag) { mTag = tag; }
    const Text& toolTip() const { return mToolTip; }
    void setToolTip(TextView text);
    std::uint32_t foreColor() const { return mForeColor; }
    void setForeColor(std::uint32_t color);
    bool isEnabled() const { return mIsEnabled; }
    void setEnabled(bool isEnabled);

    /// Whether it is to be seen when its frame is.
    bool isVisible() const { return mIsVisible; }
    void setVisible(bool isVisible);
    /// Whether it is seen: it and the frames round it are visible, and a frame has something to show.
    bool isShown() const { return mIsShown; }

    /// Of text, rich-text and combo boxes; of a list the selected entry. Empty for the others.
    Text text() const;
    void setText(TextView text);
    /// Of rich text: the document that it shows. A user's typing empties it.
    const Text& rtf() const { return mRtf; }
    void setRtf(TextView rtf);

    /// Of options and check boxes. Writing raises a click; an option that is selected takes its group's from the
    /// others.
    bool value() const { return mValue; }
    void setValue(bool value);
    /// What a user's click does: selects an option, turns a check box, presses a button. Nothing when it is disabled
    /// or not to be seen.
    void click();

    /// Of list and combo boxes.
    const std::vector<Text>& items() const { return mItems; }
    void setItems(std::vector<Text> items);
    void addItem(TextView item);
    void removeItem(std::size_t index);
    /// -1 when no entry is selected.
    std::int32_t listIndex() const { return mListIndex; }
    void setListIndex(std::int32_t index);

    const Rectangle& place() const { return mPlace; }
    void setPlace(const Rectangle& place);
    /// Stands as far below the top of another control from now on, whatever its line; what is below it follows. Null
    /// gives it the place of its line back.
    void setTopBelow(const Control* other, Twips distance);
    std::optional<Twips> fixedTop() const;

    // For the form and the layout.

    void setFrame(Control* frame) { mFrame = frame; }
    void setShown(bool isShown);
    /// The user's typing, of which the view knows already: raises the change event.
    void userTyped(TextView text);
    /// The user's choice in a list or a combo box.
    void userSelected(std::int32_t index);
    /// Loses its value without an event, since another option of its group took it.
    void deselect();

private:
    void aspectChanged(Aspect aspect) { mOwner.aspectChanged(*this, aspect); }
    template <class T, class U>
    bool change(T& member, const U& value, Aspect aspect);

    const ControlRow& mRow;
    ControlOwner& mOwner;
    Control* mFrame = nullptr;
    Text mCaption;
    Text mTag;
    Text mToolTip;
    Text mText;
    Text mRtf;
    std::vector<Text> mItems;
    std::int32_t mListIndex = -1;
    Rectangle mPlace;
    const Control* mAbove = nullptr;
    Twips mBelowIt = 0;
    std::uint32_t mForeColor;
    bool mIsEnabled = true;
    bool mIsVisible;
    bool mIsShown = true;
    bool mValue = false;
};

}  // namespace quorvel::forms
