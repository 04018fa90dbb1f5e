// The ports' implementations on Windows.

#include "platform/windows_dates.h"
#include "platform/windows_letter_case.h"

namespace quorvel {

const LetterCase& letterCase() {
    static const WindowsLetterCase instance;
    return instance;
}

const Dates& dates() {
    static const WindowsDates instance;
    return instance;
}

}  // namespace quorvel
