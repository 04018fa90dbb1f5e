#pragma once

#include "core/dates.h"

namespace quorvel {

/// The portable twin of the platform's date functions: it reads the dates that stand in references
/// as OLE Automation reads them, and writes them with the same patterns.
class PortableDates final : public Dates {
public:
    std::optional<DateValue> parse(TextView text) const override;
    Text format(DateValue date, TextView pattern) const override;
};

}  // namespace quorvel
