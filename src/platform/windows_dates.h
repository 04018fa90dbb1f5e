#pragma once

#include "core/dates.h"

namespace quorvel {

/// Dates over OLE Automation, in US English without the user's own settings. A failure of the
/// platform is "no date" or an empty text.
///
/// One thing is left to the machine: in which century a year of two digits lies. Windows had them end
/// with 2029 and has them end with 2049 now.
class WindowsDates final : public Dates {
public:
    std::optional<DateValue> parse(TextView text) const override;
    Text format(DateValue date, TextView pattern) const override;
};

}  // namespace quorvel
