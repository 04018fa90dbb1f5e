#include "forms/win/form_window.h"
#include "forms/win/navigation.h"

namespace quorvel::forms::win {

namespace {

constexpr LPARAM kWasDown = 1 << 30;

bool isDown(int key) {
    return GetKeyState(key) < 0;
}

bool isPressed(ControlKind kind) {
    return kind == ControlKind::OptionButton || kind == ControlKind::CheckBox || kind == ControlKind::Button;
}

/// What an arrow key says of the direction, if it is one.
std::optional<bool> isForward(WPARAM key) {
    switch (key) {
        case VK_RIGHT:
        case VK_DOWN: return true;
        case VK_LEFT:
        case VK_UP: return false;
        default: return std::nullopt;
    }
}

}  // namespace

const KeyReader* keyReaderOf(HWND root) {
    return FormWindow::of(root);
}

std::optional<KeyStroke> FormWindow::meaningOf(const MSG& message) const {
    const std::shared_ptr<Form> form = mForm.lock();
    if (!form || mIsClosed) {
        return std::nullopt;
    }
    const ChildWindow* const focus = find(message.hwnd);
    if (message.message == WM_KEYDOWN) {
        return meaningOfKey(*form, focus, message.wParam, (message.lParam & kWasDown) != 0);
    }
    // A letter alone is a mnemonic where nothing is written.
    const bool isMnemonic = message.message == WM_SYSCHAR || focus == nullptr || isPressed(focus->control().kind());
    const auto letter = static_cast<char16_t>(message.wParam);
    if (isMnemonic && letter > u' ' &&
        ofMnemonic(form->controls(), focus != nullptr ? &focus->control() : nullptr, letter,
                   [this](const Control& control) { return canFocus(control); }) != nullptr) {
        return KeyStroke{KeyCommand::Mnemonic, letter};
    }
    return std::nullopt;
}

std::optional<KeyStroke> FormWindow::meaningOfKey(Form& form, const ChildWindow* focus, WPARAM key,
                                                  bool isRepeated) const {
    const bool isControl = isDown(VK_CONTROL);
    const bool isListOpen = focus != nullptr && focus->isDroppedDown();
    const ControlKind kind = focus != nullptr ? focus->control().kind() : ControlKind::Label;
    switch (key) {
        case VK_TAB:
            if (isControl) {
                return std::nullopt;
            }
            return KeyStroke{isDown(VK_SHIFT) ? KeyCommand::PreviousStop : KeyCommand::NextStop};
        case VK_RETURN:
            if (isControl || isListOpen || (focus != nullptr && !form.isEnterOk(focus->control()))) {
                return std::nullopt;
            }
            // The key that opened the form may still be down: it answers nothing in it.
            return KeyStroke{isRepeated ? KeyCommand::Nothing : KeyCommand::Enter};
        case VK_ESCAPE:
            if (isListOpen) {
                return std::nullopt;
            }
            return KeyStroke{isRepeated ? KeyCommand::Nothing : KeyCommand::Escape};
        case 'A':
            if (isControl && !isDown(VK_SHIFT) && (kind == ControlKind::TextBox || kind == ControlKind::ComboBox)) {
                return KeyStroke{KeyCommand::SelectAll};
            }
            return std::nullopt;
        default: break;
    }
    const std::optional<bool> forward = isForward(key);
    if (!forward || focus == nullptr || isControl) {
        return std::nullopt;
    }
    if (kind == ControlKind::OptionButton || kind == ControlKind::Button) {
        return KeyStroke{*forward ? KeyCommand::NextNeighbour : KeyCommand::PreviousNeighbour};
    }
    if ((key == VK_UP || key == VK_DOWN) && upDownOf(form.controls(), focus->control()) != nullptr) {
        return KeyStroke{key == VK_UP ? KeyCommand::SpinUp : KeyCommand::SpinDown};
    }
    return std::nullopt;
}

void FormWindow::obey(const KeyStroke& stroke) {
    const std::shared_ptr<Form> form = mForm.lock();
    if (!form || mIsClosed) {
        return;
    }
    std::deque<Control>& all = form->controls();
    const ChildWindow* const focus = focused();
    const Control* const from = focus != nullptr ? &focus->control() : nullptr;
    const CanFocus isReachable = [this](const Control& control) { return canFocus(control); };
    switch (stroke.command) {
        case KeyCommand::Nothing: break;
        case KeyCommand::NextStop: focusByKey(nextStop(all, from, true, isReachable)); break;
        case KeyCommand::PreviousStop: focusByKey(nextStop(all, from, false, isReachable)); break;
        case KeyCommand::Enter: form->userPressedEnter(); break;
        case KeyCommand::Escape: form->userPressedEscape(); break;
        case KeyCommand::NextNeighbour:
        case KeyCommand::PreviousNeighbour:
            if (from != nullptr) {
                goTo(neighbour(all, *from, stroke.command == KeyCommand::NextNeighbour, isReachable), false);
            }
            break;
        case KeyCommand::SpinUp:
        case KeyCommand::SpinDown:
            if (Control* const upDown = from != nullptr ? upDownOf(all, *from) : nullptr; upDown != nullptr) {
                form->userSpun(*upDown, stroke.command == KeyCommand::SpinUp);
            }
            break;
        case KeyCommand::SelectAll:
            if (focus != nullptr) {
                focus->selectAll();
            }
            break;
        case KeyCommand::Mnemonic:
            showCues(UISF_HIDEACCEL | UISF_HIDEFOCUS);
            goTo(ofMnemonic(all, from, stroke.letter, isReachable), true);
            break;
    }
}

void FormWindow::focusByKey(const Control* control) {
    const ChildWindow* const child = control != nullptr ? find(*control) : nullptr;
    if (child == nullptr) {
        return;
    }
    showCues(UISF_HIDEFOCUS);
    SetFocus(child->handle());
    if (!mIsClosed && child->owns(GetFocus())) {
        child->markText();
    }
}

/// An option is selected by being gone to; a mnemonic presses what can be pressed.
void FormWindow::goTo(Control* control, bool isPressing) {
    focusByKey(control);
    if (control != nullptr && !mIsClosed &&
        (control->kind() == ControlKind::OptionButton || (isPressing && isPressed(control->kind())))) {
        press(*control);
    }
}

void FormWindow::press(Control& control) {
    const std::shared_ptr<Form> form = mForm.lock();
    if (form && !mIsClosed) {
        form->userClicked(control);
    }
}

void FormWindow::showCues(WORD cues) const {
    SendMessageW(mHandle, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, cues), 0);
}

}  // namespace quorvel::forms::win
