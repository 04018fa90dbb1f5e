#pragma once

#include "core/vbwprotector.h"

namespace quorvel {

/// A class whose procedures report, and whose variables stand in the report of an error.
class Instrumented {
public:
    /// The name in front of its procedures' own names: "OutputTemplateYear".
    virtual TextView className() const = 0;
    /// Reports each field with `vbwReportVariable`, in declaration order.
    virtual void dumpVariables(VBWPROTECTOR& report) const = 0;

protected:
    constexpr Instrumented() = default;
    Instrumented(const Instrumented&) = default;
    Instrumented& operator=(const Instrumented&) = default;
    ~Instrumented() = default;
};

/// A module: procedures under one name that belong to no object and have no variables.
class StandardModule final : public Instrumented {
public:
    constexpr explicit StandardModule(const Name& name) : mName(name) {}

    TextView className() const override { return mName; }
    void dumpVariables(VBWPROTECTOR& /*report*/) const override {}

private:
    TextView mName;
};

}  // namespace quorvel
