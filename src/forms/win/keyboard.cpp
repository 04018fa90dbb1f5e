#include "forms/win/keyboard.h"

namespace quorvel::forms::win {

namespace {

/// Of a thread, while forms of it are seen.
struct Hook {
    HHOOK handle = nullptr;
    int users = 0;
    Keyboard::FindReader findReader = nullptr;
};

// Without a destructor, which would have to run when a thread ends.
thread_local Hook hookOfThread;

bool isKey(UINT message) {
    return message == WM_KEYDOWN || message == WM_CHAR || message == WM_SYSCHAR;
}

LRESULT CALLBACK messagePassesBy(int code, WPARAM isRemoved, LPARAM parameter) {
    const Hook& hook = hookOfThread;
    MSG& message = *reinterpret_cast<MSG*>(parameter);
    if (code == HC_ACTION && isRemoved == PM_REMOVE && isKey(message.message) && hook.findReader != nullptr) {
        const HWND root = GetAncestor(message.hwnd, GA_ROOT);
        const KeyReader* const reader = root != nullptr ? hook.findReader(root) : nullptr;
        if (const std::optional<KeyStroke> stroke = reader != nullptr ? reader->meaningOf(message) : std::nullopt) {
            message.hwnd = root;
            message.message = Keyboard::kKeyMessage;
            message.wParam = static_cast<WPARAM>(stroke->command);
            message.lParam = stroke->letter;
        }
    }
    return CallNextHookEx(nullptr, code, isRemoved, parameter);
}

}  // namespace

Keyboard::Keyboard(FindReader findReader) {
    Hook& hook = hookOfThread;
    if (++hook.users == 1) {
        hook.findReader = findReader;
        hook.handle = SetWindowsHookExW(WH_GETMESSAGE, messagePassesBy, nullptr, GetCurrentThreadId());
    }
}

Keyboard::~Keyboard() {
    Hook& hook = hookOfThread;
    if (--hook.users == 0 && hook.handle != nullptr) {
        UnhookWindowsHookEx(hook.handle);
        hook.handle = nullptr;
    }
}

}  // namespace quorvel::forms::win
