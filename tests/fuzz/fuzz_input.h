#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <span>

#include "core/text.h"

namespace quorvel {

/// The bytes of the fuzzer: options first, text from the rest.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t* data, std::size_t size) : mBytes(data, size) {}

    /// The next byte as eight options; 0 when there is none left.
    std::uint8_t options() {
        if (mBytes.empty()) {
            return 0;
        }
        const std::uint8_t byte = mBytes.front();
        mBytes = mBytes.subspan(1);
        return byte;
    }

    /// The rest: ASCII as it is, and for each other byte one of the characters that matter to a parser.
    Text rest() const {
        constexpr char16_t kCharacters[] = {
            u'\u2013', u'\u00A0', u'\u201C', u'\u201D', u'\u2019', u'\u200B', u'\u00AD', u'\u3000',
            u'\u00C9', u'\u0131', u'\u2212', u'\u4E2D', u'\xD83D', u'\xDE00', u'\uFFFF', u'\u00DF',
        };
        Text text;
        for (const std::uint8_t byte : mBytes) {
            text.push_back(byte < 0x80 ? static_cast<char16_t>(byte) : kCharacters[byte % std::size(kCharacters)]);
        }
        return text;
    }

private:
    std::span<const std::uint8_t> mBytes;
};

/// What has to hold for every input.
inline void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// What a target does with an input.
void tryInput(FuzzInput& input);

}  // namespace quorvel

// Each target is a program of one file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    quorvel::FuzzInput input(data, size);
    quorvel::tryInput(input);
    return 0;
}
