#include "platform/portable_letter_case.h"

#include <locale.h>
#include <wctype.h>

namespace quorvel {

namespace {

constexpr char16_t kFirstSurrogate = u'\xD800';

locale_t neutralLocale() {
    static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return locale;
}

template <class Map>
char16_t mapped(char16_t unit, Map map) {
    return unit < kFirstSurrogate ? static_cast<char16_t>(map(static_cast<wint_t>(unit), neutralLocale())) : unit;
}

}  // namespace

char16_t PortableLetterCase::toUpper(char16_t unit) const {
    return mapped(unit, towupper_l);
}

char16_t PortableLetterCase::toLower(char16_t unit) const {
    return mapped(unit, towlower_l);
}

}  // namespace quorvel
