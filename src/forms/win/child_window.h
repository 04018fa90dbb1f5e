#pragma once

#include <windows.h>

#include <commctrl.h>

#include <vector>

#include "forms/control.h"
#include "forms/view.h"
#include "forms/win/density.h"
#include "forms/win/font.h"

namespace quorvel::forms::win {

/// Who hears what a control's window is told, before the window does.
struct Listener {
    SUBCLASSPROC procedure = nullptr;
    DWORD_PTR data = 0;
};

/// The window of a control, and how it shows what the control holds. A window that could not be made shows nothing.
class ChildWindow {
public:
    explicit ChildWindow(Control& control) : mControl(control) {}
    ChildWindow(const ChildWindow&) = delete;
    ChildWindow& operator=(const ChildWindow&) = delete;

    /// Makes the window, behind those that were made before. @param number by which messages name it
    void create(HWND form, int number, const Font& font, const Density& density, const Listener& listener);
    /// One of its windows is gone.
    void forget(HWND window);

    Control& control() const { return mControl; }
    HWND handle() const { return mHandle; }
    /// The window in which the user types: the inner one of a combo box.
    HWND box() const { return mBox != nullptr ? mBox : mHandle; }
    bool owns(HWND window) const { return window != nullptr && (window == mHandle || window == mBox); }
    bool canFocus() const;
    bool isDroppedDown() const;

    /// Shows what the control holds; its place and whether it is seen are `arrange`'s.
    void show(Aspect aspect);
    /// What the user typed.
    Text text() const;
    /// Whether the window is told something by the program, of which the form knows.
    bool isBeingWritten() const { return mIsBeingWritten; }

    bool shallBeSeen() const;
    /// Whether the window is elsewhere than the control, or is seen when it shall not be.
    bool needsArranging(const Density& density) const;
    /// Puts the window where the control is, with others of a batch or (null) at once.
    /// @return the batch from then on; null when there is none any more
    HDWP arrange(const Density& density, HDWP batch);
    void setFont(const Font& font, const Density& density);

    Selection selection() const;
    void setSelection(const Selection& selection) const;
    void selectAll() const;
    /// The same when the keyboard comes into a box of a single line.
    void markText() const;

private:
    class Writing;

    /// Where a window stands, and whether it is seen.
    struct Arrangement {
        RECT place = {};
        bool isSeen = false;
    };

    RECT rectangle(const Density& density) const;
    void fitToLine(const Density& density) const;
    void showText();
    void showItems();

    Control& mControl;
    HWND mHandle = nullptr;
    HWND mBox = nullptr;
    /// The entries as the window has them.
    std::vector<Text> mEntries;
    Arrangement mArrangement;
    bool mIsBeingWritten = false;
};

}  // namespace quorvel::forms::win
