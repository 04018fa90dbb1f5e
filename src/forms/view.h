#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "core/text.h"
#include "forms/control.h"

namespace quorvel::forms {

/// How many twips a dialog unit of the form's font is.
struct DialogUnits {
    Twips horizontal = 0;
    Twips vertical = 0;
};

/// A selection of characters in a text or rich-text box.
struct Selection {
    std::int32_t start = 0;
    std::int32_t length = 0;
};

/// Standard messages of edit controls, by their numbers.
enum class EditMessage : std::uint32_t { CanUndo = 198, Undo = 199, Cut = 768, Copy = 769, Paste = 770 };

/// Formats of texts on the clipboard, by their numbers.
enum class ClipboardFormat : std::uint32_t { Text = 1, OemText = 7, UnicodeText = 13 };

/// Port: the windows of a form. It is made for one form, whose controls it shows from then on, and tells it what the
/// user does (`Form`, "What the user does"). A window that could not be made answers like one that shows nothing.
class FormView {
public:
    FormView() = default;
    FormView(const FormView&) = delete;
    FormView& operator=(const FormView&) = delete;
    virtual ~FormView() = default;

    /// Closes the window for good, without a word to the form; it may be in the middle of telling the form something.
    virtual void close() = 0;

    /// Of the system's message font.
    virtual DialogUnits dialogUnits() const = 0;
    /// What the caption and the borders add to the client area: `left` and `top` of it, and both sides together.
    virtual Rectangle borders() const = 0;

    /// A control has another aspect; the form's own text, value and so on are the truth.
    virtual void aspectChanged(const Control& control, Aspect aspect) = 0;
    /// Between the two, controls get their places and come or go: their windows may follow at the end, all at once.
    virtual void beginLayout() {}
    virtual void endLayout() {}
    /// The window's place on the screen, in twips, with its borders.
    virtual Rectangle place() const = 0;
    virtual void setPlace(const Rectangle& place) = 0;
    virtual void setCaption(TextView caption) = 0;
    /// A handle of an icon, or 0.
    virtual void setIcon(std::intptr_t icon) = 0;
    virtual void setEnabled(bool isEnabled) = 0;

    /// Of the form's own window, and of a control's; 0 when there is none.
    virtual std::intptr_t handle() const = 0;
    virtual std::intptr_t handle(const Control& control) const = 0;

    /// Belongs to the window `owner` (0: to none) from now on; not to be seen yet.
    virtual void show(std::intptr_t owner) = 0;
    /// Is to be seen, with the focus in a control when there is one.
    virtual void reveal(const Control* focus) = 0;
    virtual void hide() = 0;
    virtual bool isRevealed() const = 0;
    /// False when the control cannot take the focus.
    virtual bool setFocus(const Control& control) = 0;
    virtual bool setFocus() = 0;

    /// Of a text, rich-text or combo box.
    virtual Selection selection(const Control& control) const = 0;
    virtual void setSelection(const Control& control, const Selection& selection) = 0;
    /// What a rich-text box shows.
    virtual Text plainText(const Control& control) const = 0;
    /// Sends a message of edit controls without parameters and leaves the mouse cursor as it was.
    virtual std::intptr_t sendAndKeepCursor(const Control& control, EditMessage message) = 0;
    virtual bool clipboardHolds(ClipboardFormat format) const = 0;

    /// Tells the user something that no form can show.
    virtual void showMessage(TextView caption, TextView text) = 0;
};

}  // namespace quorvel::forms
