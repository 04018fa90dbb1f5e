#include "forms/win/libraries.h"

#include <uxtheme.h>
#include <vsstyle.h>

#include <mutex>
#include <string>
#include <utility>

#include "forms/win/resources.h"

extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace quorvel::forms::win {

namespace {

struct RichTextLibrary {
    const wchar_t* file;
    const wchar_t* windowClass;
};

// The newest one first.
constexpr RichTextLibrary kRichTextLibraries[] = {
    {L"msftedit.dll", L"RICHEDIT50W"},
    {L"riched20.dll", L"RichEdit20W"},
};

/// From the system's folder alone: the host's own may hold anything.
HMODULE loadFromSystem(const wchar_t* file) {
    std::wstring path(MAX_PATH, L'\0');
    const UINT length = GetSystemDirectoryW(path.data(), MAX_PATH);
    if (length == 0 || length >= MAX_PATH) {
        return nullptr;
    }
    path.resize(length);
    return LoadLibraryW((path + L'\\' + file).c_str());
}

/// What is used of the visual styles, which systems may lack.
struct Themes {
    using Open = HTHEME(WINAPI*)(HWND, LPCWSTR);
    using Draw = HRESULT(WINAPI*)(HTHEME, HDC, int, int, LPCRECT, LPCRECT);
    using Close = HRESULT(WINAPI*)(HTHEME);

    HMODULE library = nullptr;
    Open open = nullptr;
    Draw draw = nullptr;
    Close close = nullptr;
};

struct Libraries {
    std::mutex mutex;
    bool areThemesWanted = true;
    Themes themes;
    HMODULE richText = nullptr;
    const wchar_t* richTextClass = nullptr;
    bool isContextWanted = true;
    HANDLE context = INVALID_HANDLE_VALUE;
};

Libraries& libraries() {
    static Libraries loaded;
    return loaded;
}

/// With a manifest of ours that asks for the styled controls.
HANDLE activationContext() {
    Libraries& loaded = libraries();
    const std::scoped_lock lock(loaded.mutex);
    if (loaded.isContextWanted) {
        loaded.isContextWanted = false;
        ACTCTXW description = {};
        description.cbSize = sizeof(description);
        description.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
        description.lpResourceName = MAKEINTRESOURCEW(QUORVEL_VISUAL_STYLES);
        description.hModule = thisModule();
        loaded.context = CreateActCtxW(&description);
    }
    return loaded.context;
}

template <class Function>
Function functionOf(HMODULE library, const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

Themes themes() {
    Libraries& loaded = libraries();
    const std::scoped_lock lock(loaded.mutex);
    if (std::exchange(loaded.areThemesWanted, false)) {
        Themes& found = loaded.themes;
        found.library = loadFromSystem(L"uxtheme.dll");
        if (found.library != nullptr) {
            found.open = functionOf<Themes::Open>(found.library, "OpenThemeData");
            found.draw = functionOf<Themes::Draw>(found.library, "DrawThemeBackground");
            found.close = functionOf<Themes::Close>(found.library, "CloseThemeData");
        }
    }
    const Themes& found = loaded.themes;
    return found.open != nullptr && found.draw != nullptr && found.close != nullptr ? found : Themes();
}

}  // namespace

HINSTANCE thisModule() {
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

const wchar_t* richTextClass() {
    Libraries& loaded = libraries();
    const std::scoped_lock lock(loaded.mutex);
    for (const RichTextLibrary& library : kRichTextLibraries) {
        if (loaded.richText == nullptr) {
            loaded.richText = loadFromSystem(library.file);
            loaded.richTextClass = loaded.richText != nullptr ? library.windowClass : nullptr;
        }
    }
    return loaded.richTextClass;
}

void drawStyledBorder(HWND window) {
    const Themes styles = themes();
    const HTHEME theme = styles.open != nullptr ? styles.open(window, VSCLASS_EDIT) : nullptr;
    if (theme == nullptr) {
        return;
    }
    if (const HDC canvas = GetWindowDC(window); canvas != nullptr) {
        RECT place = {};
        GetWindowRect(window, &place);
        OffsetRect(&place, -place.left, -place.top);
        RECT inner = place;
        InflateRect(&inner, -GetSystemMetrics(SM_CXEDGE), -GetSystemMetrics(SM_CYEDGE));
        ExcludeClipRect(canvas, inner.left, inner.top, inner.right, inner.bottom);
        const int state = IsWindowEnabled(window) == FALSE ? ETS_DISABLED
                          : GetFocus() == window           ? ETS_FOCUSED
                                                           : ETS_NORMAL;
        styles.draw(theme, canvas, EP_EDITTEXT, state, &place, nullptr);
        ReleaseDC(window, canvas);
    }
    styles.close(theme);
}

VisualStyles::VisualStyles() {
    const HANDLE context = activationContext();
    mIsActive = context != INVALID_HANDLE_VALUE && ActivateActCtx(context, &mCookie) != FALSE;
}

VisualStyles::~VisualStyles() {
    if (mIsActive) {
        DeactivateActCtx(0, mCookie);
    }
}

void releaseLibraries() {
    Libraries& loaded = libraries();
    const std::scoped_lock lock(loaded.mutex);
    if (loaded.richText != nullptr) {
        FreeLibrary(loaded.richText);
        loaded.richText = nullptr;
        loaded.richTextClass = nullptr;
    }
    if (loaded.themes.library != nullptr) {
        FreeLibrary(loaded.themes.library);
        loaded.themes = {};
    }
    loaded.areThemesWanted = true;
    if (loaded.context != INVALID_HANDLE_VALUE) {
        ReleaseActCtx(loaded.context);
        loaded.context = INVALID_HANDLE_VALUE;
    }
    loaded.isContextWanted = true;
}

}  // namespace quorvel::forms::win
