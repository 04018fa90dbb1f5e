#pragma once

#include "core/vbwprotector.h"

namespace quorvel {

/// A class whose variables stand in the report of an error.
class Instrumented {
public:
    /// Reports each field with `vbwReportVariable`, in declaration order.
    virtual void dumpVariables(VBWPROTECTOR& report) const = 0;

protected:
    Instrumented() = default;
    Instrumented(const Instrumented&) = default;
    Instrumented& operator=(const Instrumented&) = default;
    ~Instrumented() = default;
};

}  // namespace quorvel
