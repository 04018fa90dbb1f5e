#pragma once

#include "core/letter_case.h"
#include "core/text.h"

namespace quorvel {

/// Where the last sentence of a text begins: behind ". ", unless what ends there is an initial ("W. D. Howells").
inline std::size_t lastSentence(TextView text) {
    for (std::size_t end = text.rfind(u". "); end != TextView::npos && end > 0; end = text.rfind(u". ", end - 1)) {
        const bool isOneLetter = end == 1 || !isCasedLetter(text[end - 2]);
        if (!isOneLetter || !isCapital(text[end - 1])) {
            return end + 2;
        }
    }
    return 0;
}

}  // namespace quorvel
