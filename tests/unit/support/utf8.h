#pragma once

#include <string>
#include <string_view>

#include "core/text.h"

namespace quorvel::test {

/// Between the texts of the library and those of files; valid UTF-8 is taken for granted.
inline Text textOf(std::string_view utf8) {
    Text text;
    for (std::size_t i = 0; i < utf8.size();) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        const std::size_t size = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        char32_t point = size == 1 ? lead : lead & (0xFFU >> (size + 1));
        for (std::size_t k = 1; k < size && i + k < utf8.size(); ++k) {
            point = (point << 6U) | (static_cast<unsigned char>(utf8[i + k]) & 0x3FU);
        }
        i += size;
        if (point < 0x10000) {
            text.push_back(static_cast<char16_t>(point));
        } else {
            text.push_back(static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10U)));
            text.push_back(static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FFU)));
        }
    }
    return text;
}

inline std::string utf8Of(TextView text) {
    std::string utf8;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t point = text[i];
        if (point >= 0xD800 && point < 0xDC00 && i + 1 < text.size()) {
            point = 0x10000 + ((point - 0xD800) << 10U) + (text[++i] - 0xDC00U);
        }
        const int more = point < 0x80 ? 0 : point < 0x800 ? 1 : point < 0x10000 ? 2 : 3;
        constexpr unsigned kLead[] = {0, 0xC0, 0xE0, 0xF0};
        utf8.push_back(static_cast<char>(kLead[more] | (point >> (6 * more))));
        for (int left = more - 1; left >= 0; --left) {
            utf8.push_back(static_cast<char>(0x80 | ((point >> (6 * left)) & 0x3F)));
        }
    }
    return utf8;
}

}  // namespace quorvel::test
