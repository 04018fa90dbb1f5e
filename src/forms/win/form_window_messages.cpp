#include "forms/win/form_window.h"

#include <commctrl.h>
#include <windowsx.h>

#include "forms/win/libraries.h"

namespace quorvel::forms::win {

namespace {

// As hosts name them: the index of a system colour, or else a colour.
constexpr std::uint32_t kIsSystemColor = 0x80000000;

COLORREF colorOf(std::uint32_t color) {
    return (color & kIsSystemColor) != 0 ? GetSysColor(static_cast<int>(color & 0xFF)) : static_cast<COLORREF>(color);
}

bool isBox(const ChildWindow& child) {
    const ControlKind kind = child.control().kind();
    return kind == ControlKind::TextBox || kind == ControlKind::RichText;
}

}  // namespace

/// Nothing is told by a window that is closed, or to a form that is gone. It may be closed behind it.
template <class Tell>
void FormWindow::tell(Tell&& something) {
    const std::shared_ptr<Form> form = mForm.lock();
    if (form && !mIsClosed) {
        something(*form);
    }
}

LRESULT CALLBACK FormWindow::windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* const created = static_cast<FormWindow*>(reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
        created->mHandle = window;
    }
    auto* const held = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    const std::shared_ptr<FormWindow> self = held != nullptr ? held->weak_from_this().lock() : nullptr;
    if (!self) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    const std::shared_ptr<Form> form = self->mForm.lock();
    try {
        return self->receive(message, wParam, lParam);
    } catch (...) {
        // Memory ran out: the system gets no answer.
        return 0;
    }
}

LRESULT FormWindow::receive(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
            if (ChildWindow* const child = find(reinterpret_cast<HWND>(lParam)); child != nullptr) {
                notified(*child, HIWORD(wParam));
            }
            return 0;
        case WM_NOTIFY: {
            const auto& notice = *reinterpret_cast<const NMUPDOWN*>(lParam);
            const ChildWindow* const child = find(notice.hdr.hwndFrom);
            if (child == nullptr || notice.hdr.code != static_cast<UINT>(UDN_DELTAPOS)) {
                return 0;
            }
            const bool isUp = notice.iDelta > 0;
            tell([&](Form& form) { form.userSpun(child->control(), isUp); });
            // The control itself stays at its 0.
            return TRUE;
        }
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
            return colorsOf(message, reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
        case Keyboard::kKeyMessage: obey({static_cast<KeyCommand>(wParam), static_cast<char16_t>(lParam)}); return 0;
        case WM_SYSKEYDOWN: showCues(UISF_HIDEACCEL | UISF_HIDEFOCUS); break;
        case WM_MOUSEMOVE: pointedAt(mHandle, childAt({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)})); return 0;
        case WM_MOUSELEAVE: pointerLeft(); return 0;
        case WM_ACTIVATE: activated(LOWORD(wParam) != WA_INACTIVE); return 0;
        case WM_SETFOCUS: focusSomewhere(); return 0;
        case WM_SHOWWINDOW:
            // Not when it goes and comes with its owner.
            if (lParam == 0) {
                shown(wParam != FALSE);
            }
            break;
        case WM_CLOSE: tell([](Form& form) { form.Unload(); }); return 0;
        case kDensityChanged: densityBecame(Density(HIWORD(wParam)), reinterpret_cast<const RECT*>(lParam)); return 0;
        case WM_SETTINGCHANGE:
            if (wParam == SPI_SETNONCLIENTMETRICS) {
                fontChanged();
            }
            break;
        case WM_SYSCOLORCHANGE:
            for (const ChildWindow& child : mChildren) {
                SendMessageW(child.handle(), message, wParam, lParam);
            }
            break;
        case WM_DESTROY:
            mIsBeingDestroyed = true;
            // The form lets go of this object, but its windows go one after the other.
            mKeptByWindow = shared_from_this();
            mKeyboard.reset();
            tell([](Form& form) { form.windowGone(); });
            return 0;
        case WM_NCDESTROY: {
            const HWND window = mHandle;
            SetWindowLongPtrW(window, GWLP_USERDATA, 0);
            mHandle = nullptr;
            mKeptByWindow.reset();
            return DefWindowProcW(window, message, wParam, lParam);
        }
        default: break;
    }
    return DefWindowProcW(mHandle, message, wParam, lParam);
}

LRESULT CALLBACK FormWindow::childProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR number,
                                            DWORD_PTR form) {
    const std::shared_ptr<FormWindow> self = reinterpret_cast<FormWindow*>(form)->weak_from_this().lock();
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(window, childProcedure, number);
        if (self) {
            self->mChildren.at(number - 1).forget(window);
        }
    }
    if (!self || self->mIsClosed) {
        return DefSubclassProc(window, message, wParam, lParam);
    }
    const std::shared_ptr<Form> alive = self->mForm.lock();
    LRESULT result = 0;
    try {
        ChildWindow& child = self->mChildren.at(number - 1);
        self->hearBefore(child, window, message);
        result = DefSubclassProc(window, message, wParam, lParam);
        if (!self->mIsClosed) {
            self->hearAfter(child, window, message);
        }
    } catch (...) {
        // Memory ran out: the form does not hear of it.
        return result;
    }
    return result;
}

void FormWindow::hearBefore(ChildWindow& child, HWND window, UINT message) {
    switch (message) {
        case WM_MOUSEMOVE: pointedAt(window, &child); break;
        case WM_MOUSELEAVE: pointerLeft(); break;
        case WM_SYSKEYDOWN: showCues(UISF_HIDEACCEL | UISF_HIDEFOCUS); break;
        default: break;
    }
}

void FormWindow::hearAfter(ChildWindow& child, HWND window, UINT message) {
    Control& control = child.control();
    if (control.kind() == ControlKind::RichText &&
        (message == WM_NCPAINT || message == WM_SETFOCUS || message == WM_KILLFOCUS || message == WM_ENABLE)) {
        drawStyledBorder(window);
    }
    switch (message) {
        case WM_SETFOCUS:
            if (window != child.box()) {
                return;  // A combo box, which gives it to its inner window.
            }
            mLastFocused = &child;
            if (control.kind() == ControlKind::Button) {
                emphasize(&child);
            }
            tell([&](Form& form) { form.userEntered(control); });
            break;
        case WM_KILLFOCUS:
            if (window != child.box()) {
                return;
            }
            if (control.kind() == ControlKind::Button) {
                emphasizeOk();
            }
            tell([&](Form& form) { form.userLeft(control); });
            break;
        case WM_KEYUP:
        case WM_LBUTTONUP:
        case WM_MOUSEMOVE:
            if (isBox(child)) {
                const SelectedBy by = message == WM_KEYUP ? SelectedBy::Key : SelectedBy::Mouse;
                tell([&](Form& form) { form.userSelectedText(control, by); });
            }
            break;
        default: break;
    }
    if (isBox(child) && control.row().isReadOnly && !mIsClosed && GetFocus() == window) {
        HideCaret(window);
    }
}

void FormWindow::notified(ChildWindow& child, WORD code) {
    if (child.isBeingWritten()) {
        return;
    }
    Control& control = child.control();
    const auto select = [&](UINT question) {
        const LRESULT index = SendMessageW(child.handle(), question, 0, 0);
        tell([&](Form& form) { form.userSelected(control, static_cast<std::int32_t>(index)); });
    };
    switch (control.kind()) {
        case ControlKind::TextBox:
        case ControlKind::RichText:
            if (code == EN_CHANGE) {
                tell([&](Form& form) { form.userTyped(control, child.text()); });
            }
            break;
        case ControlKind::OptionButton:
        case ControlKind::CheckBox:
        case ControlKind::Button:
            if (code == BN_CLICKED) {
                press(control);
            }
            break;
        case ControlKind::ListBox:
            if (code == LBN_SELCHANGE) {
                select(LB_GETCURSEL);
            }
            break;
        case ControlKind::ComboBox:
            if (code == CBN_EDITCHANGE) {
                tell([&](Form& form) { form.userTyped(control, child.text()); });
            } else if (code == CBN_SELCHANGE) {
                select(CB_GETCURSEL);
            }
            break;
        default: break;
    }
}

LRESULT FormWindow::colorsOf(UINT message, HDC canvas, HWND window) {
    const LRESULT usual =
        DefWindowProcW(mHandle, message, reinterpret_cast<WPARAM>(canvas), reinterpret_cast<LPARAM>(window));
    const ChildWindow* const child = find(window);
    if (child == nullptr) {
        return usual;
    }
    if (child->control().isEnabled()) {
        SetTextColor(canvas, colorOf(child->control().foreColor()));
    }
    if (message == WM_CTLCOLORSTATIC && child->control().kind() != ControlKind::TextBox) {
        SetBkColor(canvas, GetSysColor(COLOR_BTNFACE));
        return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE));
    }
    return usual;
}

void FormWindow::shown(bool isShown) {
    if (!isShown) {
        mKeyboard.reset();
    } else if (!mKeyboard) {
        mKeyboard.emplace();
    }
}

void FormWindow::activated(bool isActive) {
    if (!isActive) {
        return;
    }
    focusSomewhere();
    tell([](Form& form) { form.userActivated(); });
}

void FormWindow::pointedAt(HWND window, const ChildWindow* child) {
    if (child == mPointedAt && mIsPointerInside) {
        return;
    }
    mPointedAt = child;
    mIsPointerInside = true;
    TRACKMOUSEEVENT leaving = {};
    leaving.cbSize = sizeof(leaving);
    leaving.dwFlags = TME_LEAVE;
    leaving.hwndTrack = window;
    TrackMouseEvent(&leaving);
    tell([&](Form& form) { form.userPointedAt(child != nullptr ? &child->control() : nullptr); });
}

void FormWindow::pointerLeft() {
    POINT pointer = {};
    if (GetCursorPos(&pointer) != FALSE && GetAncestor(WindowFromPoint(pointer), GA_ROOT) == mHandle) {
        return;  // To another window of the form, which will tell.
    }
    mPointedAt = nullptr;
    mIsPointerInside = false;
    tell([](Form& form) { form.userPointedAt(nullptr); });
}

/// Labels and controls that are disabled leave the mouse to the form.
const ChildWindow* FormWindow::childAt(POINT point) const {
    for (const ChildWindow& child : mChildren) {
        const RECT place = mDensity.pixels(child.control().place());
        if (child.control().kind() != ControlKind::Frame && child.control().isShown() &&
            PtInRect(&place, point) != FALSE) {
            return &child;
        }
    }
    return nullptr;
}

void FormWindow::densityBecame(const Density& density, const RECT* suggested) {
    mDensity = density;
    if (suggested != nullptr) {
        SetWindowPos(mHandle, nullptr, suggested->left, suggested->top, suggested->right - suggested->left,
                     suggested->bottom - suggested->top, SWP_NOZORDER | SWP_NOOWNERZORDER | SWP_NOACTIVATE);
    }
    fontChanged();
}

void FormWindow::fontChanged() {
    if (mIsClosed) {
        return;
    }
    // The old one is in use until all have the new one.
    const std::shared_ptr<const Font> before = mFont;
    mFont = Font::of(mDensity);
    for (ChildWindow& child : mChildren) {
        child.setFont(*mFont, mDensity);
        arrange(child);
    }
    tell([](Form& form) { form.densityChanged(); });
    if (!mIsClosed) {
        RedrawWindow(mHandle, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    }
}

}  // namespace quorvel::forms::win
