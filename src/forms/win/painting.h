#pragma once

#include <windows.h>

namespace quorvel::forms::win {

/// In its scope a window is not painted, and behind it once. A hidden one is left alone: it would come to be seen.
class WithoutPainting {
public:
    explicit WithoutPainting(HWND window) : mWindow(window) {
        mIsSeen = (GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE) != 0;
        if (mIsSeen) {
            SendMessageW(mWindow, WM_SETREDRAW, FALSE, 0);
        }
    }
    WithoutPainting(const WithoutPainting&) = delete;
    WithoutPainting& operator=(const WithoutPainting&) = delete;
    ~WithoutPainting() {
        if (mIsSeen) {
            SendMessageW(mWindow, WM_SETREDRAW, TRUE, 0);
            InvalidateRect(mWindow, nullptr, TRUE);
        }
    }

private:
    HWND mWindow;
    bool mIsSeen = false;
};

}  // namespace quorvel::forms::win
