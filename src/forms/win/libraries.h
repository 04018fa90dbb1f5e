#pragma once

#include <windows.h>

namespace quorvel::forms::win {

/// The module that holds this code: the library, or a test.
HINSTANCE thisModule();

/// The class of the windows for rich text: the platform's newest one that is there; null where there is none.
const wchar_t* richTextClass();

/// Draws the border that the visual styles give boxes, round a window that has a sunken one of its own; nothing where
/// there are no visual styles.
void drawStyledBorder(HWND window);

/// In its scope windows are made, and messages shown, with the visual styles of the desktop, whether the host's program
/// is made for them or not. The host's own choice is back behind it; where there are no visual styles, nothing happens.
class VisualStyles {
public:
    VisualStyles();
    VisualStyles(const VisualStyles&) = delete;
    VisualStyles& operator=(const VisualStyles&) = delete;
    ~VisualStyles();

private:
    ULONG_PTR mCookie = 0;
    bool mIsActive = false;
};

/// Gives back what was loaded for all forms; the next form loads it again.
void releaseLibraries();

}  // namespace quorvel::forms::win
