#pragma once

#include <string>

namespace sample {

/// The user's own settings of the workbench, kept from one session to the next.
class Settings {
public:
    std::wstring text(const wchar_t* name, const std::wstring& otherwise = L"") const;
    int number(const wchar_t* name, int otherwise) const;
    void set(const wchar_t* name, const std::wstring& text) const;
    void set(const wchar_t* name, int number) const { set(name, std::to_wstring(number)); }
};

}  // namespace sample
