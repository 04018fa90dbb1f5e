#pragma once

#include <windows.h>

#include <deque>
#include <memory>
#include <optional>
#include <utility>

#include "forms/form.h"
#include "forms/view.h"
#include "forms/win/accessibility.h"
#include "forms/win/child_window.h"
#include "forms/win/density.h"
#include "forms/win/font.h"
#include "forms/win/keyboard.h"

namespace quorvel::forms::win {

/// The window of a form with its controls.
///
/// Whatever comes in from the system keeps this object and the form alive until it is done; each thing that the form is
/// told may close the window, after which nobody is told anything.
class FormWindow final : public FormView, public std::enable_shared_from_this<FormWindow>, public KeyReader {
public:
    explicit FormWindow(Form& form) : mForm(form.weak_from_this()) {}
    ~FormWindow() override { FormWindow::close(); }

    /// Makes the window, once. Those of the controls are made with their first places.
    void open();

    /// Registers the class of the windows; false when that fails.
    static bool registerClass();
    /// False while there are windows.
    static bool unregisterClass();
    /// The form whose window it is; null for any other window.
    static FormWindow* of(HWND window);

    // --- What the form wants. What is shown or focused may have the form closed, and let go of this object.

    void close() override;
    DialogUnits dialogUnits() const override;
    Rectangle borders() const override;
    void aspectChanged(const Control& control, Aspect aspect) override;
    void beginLayout() override { ++mLayouts; }
    void endLayout() override;
    Rectangle place() const override;
    void setPlace(const Rectangle& place) override;
    void setCaption(TextView caption) override;
    void setIcon(std::intptr_t icon) override;
    void setEnabled(bool isEnabled) override;
    std::intptr_t handle() const override;
    std::intptr_t handle(const Control& control) const override;
    void show(std::intptr_t owner) override;
    void reveal(const Control* focus) override;
    void hide() override;
    bool isRevealed() const override;
    bool setFocus(const Control& control) override;
    bool setFocus() override;
    Selection selection(const Control& control) const override;
    void setSelection(const Control& control, const Selection& selection) override;
    Text plainText(const Control& control) const override;
    std::intptr_t sendAndKeepCursor(const Control& control, EditMessage message) override;
    bool clipboardHolds(ClipboardFormat format) const override;
    void showMessage(TextView caption, TextView text) override;

private:
    // --- What the system tells (form_window_messages.cpp).

    static LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK childProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR number,
                                           DWORD_PTR form);
    LRESULT receive(UINT message, WPARAM wParam, LPARAM lParam);
    void hearBefore(ChildWindow& child, HWND window, UINT message);
    void hearAfter(ChildWindow& child, HWND window, UINT message);
    void notified(ChildWindow& child, WORD code);
    LRESULT colorsOf(UINT message, HDC canvas, HWND window);
    void shown(bool isShown);
    void activated(bool isActive);
    void pointedAt(HWND window, const ChildWindow* child);
    void pointerLeft();
    const ChildWindow* childAt(POINT point) const;
    void densityBecame(const Density& density, const RECT* suggested);
    void fontChanged();
    template <class Tell>
    void tell(Tell&& something);

    // --- Keys (form_window_keys.cpp).

    std::optional<KeyStroke> meaningOf(const MSG& message) const override;
    std::optional<KeyStroke> meaningOfKey(Form& form, const ChildWindow* focus, WPARAM key, bool isRepeated) const;
    void obey(const KeyStroke& stroke);
    void focusByKey(const Control* control);
    void goTo(Control* control, bool isPressing);
    void press(Control& control);
    void showCues(WORD cues) const;

    // --- Helpers.

    void makeChildren();
    ChildWindow* find(const Control& control);
    const ChildWindow* find(const Control& control) const;
    ChildWindow* find(HWND window) { return const_cast<ChildWindow*>(std::as_const(*this).find(window)); }
    const ChildWindow* find(HWND window) const;
    const ChildWindow* focused() const;
    bool canFocus(const Control& control) const;
    bool isActive() const;
    void giveBackToOwner() const;
    void focusSomewhere();
    void leave(const ChildWindow& child);
    void arrange(ChildWindow& child);
    void emphasize(const ChildWindow* button);
    void emphasizeOk();
    /// Null when the form is gone.
    std::deque<Control>* controls() const;

    std::weak_ptr<Form> mForm;
    /// Itself, while the window is being destroyed.
    std::shared_ptr<FormWindow> mKeptByWindow;
    HWND mHandle = nullptr;
    Density mDensity;
    std::shared_ptr<const Font> mFont;
    std::optional<Accessibility> mAccessibility;
    /// In the order of the controls.
    std::deque<ChildWindow> mChildren;
    std::optional<Keyboard> mKeyboard;
    /// Has the focus when the form is active.
    const ChildWindow* mLastFocused = nullptr;
    /// Null is the bare form, or nothing of it.
    const ChildWindow* mPointedAt = nullptr;
    /// Is drawn as the one that Enter presses.
    const ChildWindow* mEmphasized = nullptr;
    int mLayouts = 0;
    bool mIsPointerInside = false;
    bool mIsClosed = false;
    bool mIsBeingDestroyed = false;
};

}  // namespace quorvel::forms::win
