#include "platform/windows_letter_case.h"

#include <windows.h>

namespace quorvel {

namespace {

constexpr char16_t kFirstSurrogate = u'\xD800';

// Linguistic casing knows every cased letter; the default is the narrower one of file names. In the
// invariant locale it belongs to no language: "i" is never a Turkish one.
char16_t mapped(char16_t unit, DWORD mapping) {
    if (unit >= kFirstSurrogate) {
        return unit;
    }
    const wchar_t source = unit;
    wchar_t target = source;
    const int written = LCMapStringEx(LOCALE_NAME_INVARIANT, mapping | LCMAP_LINGUISTIC_CASING, &source, 1, &target, 1,
                                      nullptr, nullptr, 0);
    return written == 1 ? static_cast<char16_t>(target) : unit;
}

}  // namespace

char16_t WindowsLetterCase::toUpper(char16_t unit) const {
    return mapped(unit, LCMAP_UPPERCASE);
}

char16_t WindowsLetterCase::toLower(char16_t unit) const {
    return mapped(unit, LCMAP_LOWERCASE);
}

}  // namespace quorvel
