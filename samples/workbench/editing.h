#pragma once

#include <functional>
#include <string>

#include "com/dispatch_object.h"
#include "com/late_bound.h"

namespace sample {

/// What is edited in a form: a text, and the second text that goes with it.
struct EditedText {
    std::wstring text;
    std::wstring secondary;
};

/// Shows the library's forms beside a window: a host's whole part in them, late-bound from both sides.
///
///   the host offers               the library calls it
///   hWnd                          of the window that owns the forms
///   SetFormPosition(form, moved)  to have a form placed beside that window
///   setParentWidgetsValue(a, b)   when the user accepts
///   TooltipShow(text), ...Hide()  with the help text of a control
///   ReturnFocus()                 to give the keyboard back
///   ProcessSubformWorkCompleted   when a form closes
///   and DefaultOutputTemplate, getPersistentValue, setPersistentValue, WebsiteAddress, HideFormPostProcessing
class Editing {
public:
    /// @param main a QuorvelTemplate.Main2
    /// @param window beside which forms stand; it outlives this object
    /// @param showHelp shows a help text, or none
    Editing(const LateBoundObject& main, HWND window, std::function<void(const std::wstring&)> showHelp);
    Editing(const Editing&) = delete;
    Editing& operator=(const Editing&) = delete;
    ~Editing();

    /// Shows the form of an element type with a text; `accepted` is called when the user says OK.
    /// @throws ComError when the library cannot
    void show(std::int16_t type, const LateBoundObject& element, const EditedText& text,
              std::function<void(const EditedText&)> accepted);
    /// Closes the form that is shown.
    void hide();
    /// The window of the form that is shown; null without one.
    HWND form() const;

private:
    void place(const LateBoundObject& form, bool isMovedByUser);

    HWND mWindow;
    std::function<void(const EditedText&)> mAccepted;
    ComPointer<DispatchObject> mCallback = makeObject<DispatchObject>();
    ComPointer<DispatchObject> mOwner = makeObject<DispatchObject>();
    LateBoundObject mProxy;
    bool mIsShown = false;
    /// Where the user has put the form, from the window's left upper corner.
    bool mHasPlace = false;
    POINT mPlace{};
};

}  // namespace sample
