#include "forms/win/density.h"

#include <cmath>

namespace quorvel::forms::win {

namespace {

constexpr Twips kTwipsPerInch = 1440;

/// A function of a later system than the oldest that we run on; null where it is missing.
template <class Function>
Function ofUser32(const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), name)));
}

}  // namespace

Density Density::ofScreen() {
    const HDC screen = GetDC(nullptr);
    const int found = screen != nullptr ? GetDeviceCaps(screen, LOGPIXELSX) : 0;
    if (screen != nullptr) {
        ReleaseDC(nullptr, screen);
    }
    return found > 0 ? Density(static_cast<UINT>(found)) : Density();
}

Density Density::of(HWND window) {
    using GetDpiForWindow = UINT(WINAPI*)(HWND);
    static const auto getDpiForWindow = ofUser32<GetDpiForWindow>("GetDpiForWindow");
    const UINT found = getDpiForWindow != nullptr ? getDpiForWindow(window) : 0;
    return found > 0 ? Density(found) : ofScreen();
}

int Density::pixels(Twips twips) const {
    return static_cast<int>(std::lround(twips * static_cast<Twips>(mDotsPerInch) / kTwipsPerInch));
}

Twips Density::twips(int pixels) const {
    return static_cast<Twips>(pixels) * kTwipsPerInch / static_cast<Twips>(mDotsPerInch);
}

RECT Density::pixels(const Rectangle& place) const {
    return {pixels(place.left), pixels(place.top), pixels(place.left + place.width), pixels(place.top + place.height)};
}

Rectangle Density::twips(const RECT& pixels) const {
    return {twips(pixels.left), twips(pixels.top), twips(pixels.right - pixels.left),
            twips(pixels.bottom - pixels.top)};
}

LOGFONTW Density::messageFont() const {
    using SystemParametersInfoForDpi = BOOL(WINAPI*)(UINT, UINT, PVOID, UINT, UINT);
    static const auto systemParametersInfoForDpi = ofUser32<SystemParametersInfoForDpi>("SystemParametersInfoForDpi");
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = sizeof(metrics);
    if (systemParametersInfoForDpi != nullptr &&
        systemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0, mDotsPerInch) != FALSE) {
        return metrics.lfMessageFont;
    }
    if (SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0) == FALSE) {
        GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof(metrics.lfMessageFont), &metrics.lfMessageFont);
    }
    // Of the whole system's density.
    metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, static_cast<int>(mDotsPerInch),
                                            static_cast<int>(ofScreen().mDotsPerInch));
    return metrics.lfMessageFont;
}

RECT Density::borders(DWORD style, DWORD extendedStyle) const {
    using AdjustWindowRectExForDpi = BOOL(WINAPI*)(LPRECT, DWORD, BOOL, DWORD, UINT);
    static const auto adjustWindowRectExForDpi = ofUser32<AdjustWindowRectExForDpi>("AdjustWindowRectExForDpi");
    RECT frame = {};
    if (adjustWindowRectExForDpi == nullptr ||
        adjustWindowRectExForDpi(&frame, style, FALSE, extendedStyle, mDotsPerInch) == FALSE) {
        AdjustWindowRectEx(&frame, style, FALSE, extendedStyle);
    }
    return frame;
}

}  // namespace quorvel::forms::win
