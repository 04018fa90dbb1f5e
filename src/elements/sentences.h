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

/// A name without the full stop of its sentence: that of an initial, of "Jr." and of "et al." stays.
inline TextView withoutStopOfSentence(TextView name) {
    constexpr TextView kAbbreviations[] = {u"Jr", u"Sr", u"al"};
    if (!name.ends_with(u'.')) {
        return name;
    }
    const TextView shortened = name.substr(0, name.size() - 1);
    const TextView last = shortened.substr(shortened.find_last_of(u" .-") + 1);
    const bool isInitial = last.size() == 1 && isCapital(last.front());
    return isInitial || isOneOf(last, kAbbreviations) ? name : shortened;
}

}  // namespace quorvel
