#include "platform/portable_dates.h"

namespace quorvel {

std::optional<DateValue> PortableDates::parse(TextView) const {
    return std::nullopt;
}

Text PortableDates::format(DateValue, TextView) const {
    return {};
}

}  // namespace quorvel
