#include "settings.h"

#include <windows.h>

#include <cwchar>

namespace sample {

namespace {

constexpr const wchar_t* kKey = L"Software\\QuorvelTemplate\\Workbench";

}  // namespace

std::wstring Settings::text(const wchar_t* name, const std::wstring& otherwise) const {
    DWORD size = 0;
    if (RegGetValueW(HKEY_CURRENT_USER, kKey, name, RRF_RT_REG_SZ, nullptr, nullptr, &size) != ERROR_SUCCESS) {
        return otherwise;
    }
    std::wstring value(size / sizeof(wchar_t), L'\0');
    if (RegGetValueW(HKEY_CURRENT_USER, kKey, name, RRF_RT_REG_SZ, nullptr, value.data(), &size) != ERROR_SUCCESS) {
        return otherwise;
    }
    return value.c_str();
}

int Settings::number(const wchar_t* name, int otherwise) const {
    const std::wstring value = text(name);
    return value.empty() ? otherwise : static_cast<int>(std::wcstol(value.c_str(), nullptr, 10));
}

void Settings::set(const wchar_t* name, const std::wstring& text) const {
    RegSetKeyValueW(HKEY_CURRENT_USER, kKey, name, REG_SZ, text.c_str(),
                    static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

}  // namespace sample
