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
    template <class Parameters>
    ProcedureReport(const Instrumented& self, TextView name, const Parameters& parameters)
        : mProtector(VBWPROTECTOR::ofThisApartment()) {
        if (mProtector.isConcerned()) {
            if constexpr (std::is_invocable_v<const Parameters&>) {
                mProtector.vbwProcIn(self, name, parameters());
            } else {
                mProtector.vbwProcIn(self, name, parameters);
            }
        }
    }
    ProcedureReport(const ProcedureReport&) = delete;
    ProcedureReport& operator=(const ProcedureReport&) = delete;
    ~ProcedureReport() {
        if (mProtector.isConcerned()) {
            mProtector.vbwProcOut();
        }
    }

    bool isTooDeep() const { return mProtector.isConcerned() && mProtector.isTooDeep(); }

private:
    VBWPROTECTOR& mProtector;
};

template <class Parameters, class Body>
std::invoke_result_t<Body&> run(const Instrumented& self, const Name& name, const Parameters& parameters,
                                Body& body) noexcept {
    using Result = std::invoke_result_t<Body&>;
    const ProcedureReport report(self, name, parameters);
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

}  // namespace detail

/// Runs the body of a procedure of `self`, an object or a module. `name` is the procedure's own name,
/// with "[Get]" or "[Let]" behind a property's; reports put the class name of `self` in front of it.
/// @return what the body returns; after an error the empty value of that type, while variables that
/// the body filled before keep what they hold.
template <class Body>
std::invoke_result_t<Body&> procedure(const Instrumented& self, const Name& name, const ParameterList& parameters,
                                      Body&& body) noexcept {
    return detail::run(self, name, parameters, body);
}

/// The same for a procedure that is called so often that its list is made only where somebody reads it.
/// @param parameters makes the list: an array of them
template <class Parameters, class Body>
requires std::is_invocable_v<const Parameters&> std::invoke_result_t<Body&> procedure(const Instrumented& self,
                                                                                      const Name& name,
                                                                                      const Parameters& parameters,
                                                                                      Body&& body)
noexcept {
    return detail::run(self, name, parameters, body);
}

}  // namespace quorvel
