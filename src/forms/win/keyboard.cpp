#include "forms/win/keyboard.h"

namespace quorvel::forms::win {

namespace {

bool isKey(UINT message) {
    return message == WM_KEYDOWN || message == WM_CHAR || message == WM_SYSCHAR;
}

std::optional<KeyStroke> meaningOf(HWND root, const MSG& message) noexcept {
    try {
        const KeyReader* const reader = root != nullptr ? keyReaderOf(root) : nullptr;
        return reader != nullptr ? reader->meaningOf(message) : std::nullopt;
    } catch (...) {
        // Memory ran out: the key goes where it goes.
        return std::nullopt;
    }
}

LRESULT CALLBACK messagePassesBy(int code, WPARAM isRemoved, LPARAM parameter) {
    MSG& message = *reinterpret_cast<MSG*>(parameter);
    if (code == HC_ACTION && isRemoved == PM_REMOVE && isKey(message.message)) {
        const HWND root = GetAncestor(message.hwnd, GA_ROOT);
        if (const std::optional<KeyStroke> stroke = meaningOf(root, message); stroke) {
            message.hwnd = root;
            message.message = Keyboard::kKeyMessage;
            message.wParam = static_cast<WPARAM>(stroke->command);
            message.lParam = stroke->letter;
        }
    }
    return CallNextHookEx(nullptr, code, isRemoved, parameter);
}

}  // namespace

Keyboard::Keyboard() : mHook(SetWindowsHookExW(WH_GETMESSAGE, messagePassesBy, nullptr, GetCurrentThreadId())) {}

Keyboard::~Keyboard() {
    if (mHook != nullptr) {
        UnhookWindowsHookEx(mHook);
    }
}

}  // namespace quorvel::forms::win
