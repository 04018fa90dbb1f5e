// The ports' implementations where there is no Windows.

#include "platform/portable_dates.h"
#include "platform/portable_letter_case.h"

namespace quorvel {

const LetterCase& letterCase() {
    static const PortableLetterCase instance;
    return instance;
}

const Dates& dates() {
    static const PortableDates instance;
    return instance;
}

}  // namespace quorvel
