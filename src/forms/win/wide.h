#pragma once

#include "core/text.h"

/// Texts as the platform's functions take and give them: its characters have our units' width.
namespace quorvel::forms::win {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

inline const wchar_t* wide(const Text& text) {
    return reinterpret_cast<const wchar_t*>(text.c_str());
}

inline wchar_t* buffer(Text& text) {
    return reinterpret_cast<wchar_t*>(text.data());
}

}  // namespace quorvel::forms::win
