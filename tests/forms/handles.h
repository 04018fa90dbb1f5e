#pragma once

#include <windows.h>

#include <algorithm>
#include <vector>

/// What a process holds of the system.
namespace quorvel::forms::test {

/// Numbers that grow when handles are not given back.
struct Handles {
    DWORD kernel = 0;
    DWORD drawing = 0;
    /// Of windows, menus and hooks.
    DWORD user = 0;

    static Handles now();
};

inline Handles Handles::now() {
    Handles handles;
    GetProcessHandleCount(GetCurrentProcess(), &handles.kernel);
    handles.drawing = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    handles.user = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    if (handles.drawing == 0) {
        // A system that does not count: the highest of those that are made next, by their places in its tables.
        std::vector<HGDIOBJ> pens;
        std::vector<HMENU> menus;
        for (int i = 0; i < 64; ++i) {
            pens.push_back(CreatePen(PS_SOLID, 1, 0));
            menus.push_back(CreateMenu());
            handles.drawing = std::max<DWORD>(handles.drawing, LOWORD(reinterpret_cast<UINT_PTR>(pens.back())));
            handles.user = std::max<DWORD>(handles.user, LOWORD(reinterpret_cast<UINT_PTR>(menus.back())));
        }
        std::for_each(pens.begin(), pens.end(), DeleteObject);
        std::for_each(menus.begin(), menus.end(), DestroyMenu);
    }
    return handles;
}

}  // namespace quorvel::forms::test
