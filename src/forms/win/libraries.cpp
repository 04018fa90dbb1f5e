#include "forms/win/libraries.h"

#include <commctrl.h>

#include <mutex>
#include <string>

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

struct Libraries {
    std::mutex mutex;
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
    if (loaded.context != INVALID_HANDLE_VALUE) {
        ReleaseActCtx(loaded.context);
        loaded.context = INVALID_HANDLE_VALUE;
    }
    loaded.isContextWanted = true;
}

}  // namespace quorvel::forms::win
