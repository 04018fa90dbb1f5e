#include "host/com/type_library.h"

#include <string>
#include <string_view>
#include <vector>

#include "host/com/module.h"
#include "host/interfaces.h"

namespace quorvel::host {

namespace {

constexpr std::wstring_view kDevicePrefix = L"\\\\?\\";

std::wstring shortForm(const std::wstring& path) {
    std::wstring brief(GetShortPathNameW(path.c_str(), nullptr, 0), L'\0');
    brief.resize(GetShortPathNameW(path.c_str(), brief.data(), static_cast<DWORD>(brief.size())));
    return brief;
}

/// "\\?\C:\Folder" as "C:\Folder"; any other path is empty.
std::wstring plainForm(const std::wstring& path) {
    const std::size_t drive = kDevicePrefix.size();
    const bool isOnDrive = path.starts_with(kDevicePrefix) && path.size() > drive + 1 && path[drive + 1] == L':';
    return isOnDrive ? path.substr(drive) : std::wstring();
}

bool isOfThisVersion(ITypeLib* library) {
    TLIBATTR* attributes = nullptr;
    if (FAILED(library->GetLibAttr(&attributes))) {
        return false;
    }
    const bool isOurs =
        attributes->wMajorVerNum == TYPE_LIBRARY_MAJOR && attributes->wMinorVerNum == TYPE_LIBRARY_MINOR;
    library->ReleaseTLibAttr(attributes);
    return isOurs;
}

}  // namespace

HRESULT loadEmbeddedTypeLibrary(ComPtr<ITypeLib>& library) {
    const std::wstring path = Module::path();
    const std::wstring brief = shortForm(path);
    HRESULT outcome = TYPE_E_CANTLOADLIBRARY;
    for (const std::wstring& form : {path, brief, plainForm(path), plainForm(brief)}) {
        if (!form.empty() && SUCCEEDED(outcome = LoadTypeLibEx(form.c_str(), REGKIND_NONE, library.receive()))) {
            return S_OK;
        }
    }
    return outcome;
}

HRESULT loadTypeLibrary(ComPtr<ITypeLib>& library) {
    const HRESULT outcome = loadEmbeddedTypeLibrary(library);
    if (SUCCEEDED(outcome)) {
        return outcome;
    }
    ComPtr<ITypeLib> registered;
    // A newer library describes members that these objects do not have.
    if (SUCCEEDED(LoadRegTypeLib(LIBID_QuorvelTemplate, TYPE_LIBRARY_MAJOR, TYPE_LIBRARY_MINOR, LOCALE_NEUTRAL,
                                 registered.receive())) &&
        isOfThisVersion(registered.get())) {
        library = std::move(registered);
        return S_OK;
    }
    return outcome;
}

}  // namespace quorvel::host
