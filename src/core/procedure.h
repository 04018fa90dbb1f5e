#pragma once

#include <type_traits>

#include "core/instrumented.h"

/// The instrumentation that every procedure carries: `return procedure(*this, name, parameters, body)`
/// reports entry, parameters and exit, and traps what the body throws.
namespace quorvel {

/// Reports the exception in flight as an error of a procedure of `failed`. Only inside a catch block.
void reportCurrentException(const Instrumented& failed, TextView procedure) noexcept;

namespace detail {

class ProcedureReport {
public:
    ProcedureReport(const Instrumented& self, TextView name, const ParameterList& parameters)
        : mProtector(VBWPROTECTOR::ofThisApartment()) {
        mProtector.vbwProcIn(self, name, parameters);
    }
    ProcedureReport(const ProcedureReport&) = delete;
    ProcedureReport& operator=(const ProcedureReport&) = delete;
    ~ProcedureReport() { mProtector.vbwProcOut(); }

    bool isTooDeep() const { return mProtector.isTooDeep(); }

private:
    VBWPROTECTOR& mProtector;
};

}  // namespace detail

/// Runs the body of a procedure of `self`, an object or a module. `name` is the procedure's own name,
/// with "[Get]" or "[Let]" behind a property's; reports put the class name of `self` in front of it.
/// @return what the body returns; after an error the empty value of that type, while variables that
/// the body filled before keep what they hold.
template <class Body>
std::invoke_result_t<Body&> procedure(const Instrumented& self, const Name& name, const ParameterList& parameters,
                                      Body&& body) noexcept {
    using Result = std::invoke_result_t<Body&>;
    const detail::ProcedureReport report(self, name, parameters);
    try {
        if (report.isTooDeep()) {
            throw RuntimeError(ErrorNumber::OutOfStackSpace);
        }
        return body();
    } catch (...) {
        reportCurrentException(self, name);
    }
    return Result();
}

}  // namespace quorvel
