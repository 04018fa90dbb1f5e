#pragma once

#include <windows.h>

#include "forms/control.h"

namespace quorvel::forms::win {

// For headers of the platform that are older than the message.
inline constexpr UINT kDensityChanged = 0x02E0;

/// The density of a window's pixels, and what depends on it. The host decides what its process knows of densities: this
/// only asks, by functions that older systems lack.
class Density {
public:
    Density() = default;
    explicit Density(UINT dotsPerInch) : mDotsPerInch(dotsPerInch) {}
    /// That of the window's monitor, as far as the window's thread knows of it.
    static Density of(HWND window);
    static Density ofScreen();

    UINT dotsPerInch() const { return mDotsPerInch; }
    bool operator==(const Density&) const = default;

    int pixels(Twips twips) const;
    Twips twips(int pixels) const;
    /// Edges are rounded, not sizes: what touches in twips touches on the screen.
    RECT pixels(const Rectangle& place) const;
    Rectangle twips(const RECT& pixels) const;

    /// The font of the system's messages.
    LOGFONTW messageFont() const;
    /// What a frame adds on each side, outwards: negative on the left and at the top.
    RECT borders(DWORD style, DWORD extendedStyle) const;

private:
    UINT mDotsPerInch = USER_DEFAULT_SCREEN_DPI;
};

}  // namespace quorvel::forms::win
