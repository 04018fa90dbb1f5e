#pragma once

#include <initializer_list>
#include <type_traits>

#include "core/instrumented.h"

/// The instrumentation that every procedure carries: `return procedure(*this, name, parameters, body)`
/// reports entry, parameters and exit, and traps what the body throws.
namespace quorvel {

/// Parameters of a procedure that has none.
inline constexpr std::initializer_list<Parameter> kNoParameters = {};

/// Reports the exception in flight as an error of the procedure. Only inside a catch block.
void reportCurrentException(VBWPROTECTOR& protector, TextView procedure, const Instrumented* failed) noexcept;

namespace detail {

class ProcedureReport {
public:
    ProcedureReport(VBWPROTECTOR& protector, TextView name, std::initializer_list<Parameter> parameters)
        : mProtector(protector) {
        mProtector.vbwProcIn(name, parameters);
    }
    ProcedureReport(const ProcedureReport&) = delete;
    ProcedureReport& operator=(const ProcedureReport&) = delete;
    ~ProcedureReport() { mProtector.vbwProcOut(); }

private:
    VBWPROTECTOR& mProtector;
};

template <class Body>
std::invoke_result_t<Body&> procedure(const Instrumented* self, const Name& name,
                                      std::initializer_list<Parameter> parameters, Body&& body) noexcept {
    using Result = std::invoke_result_t<Body&>;
    VBWPROTECTOR& protector = VBWPROTECTOR::ofThisApartment();
    const ProcedureReport report(protector, name, parameters);
    try {
        return body();
    } catch (...) {
        reportCurrentException(protector, name, self);
    }
    return Result();
}

}  // namespace detail

/// Runs the body of a member of `self`. `name` is the class name, a full stop and the procedure's own
/// name, with "[Get]" or "[Let]" behind a property's.
/// @return what the body returns; after an error the empty value of that type, while variables that
/// the body filled before keep what they hold.
template <class Body>
std::invoke_result_t<Body&> procedure(const Instrumented& self, const Name& name,
                                      std::initializer_list<Parameter> parameters, Body&& body) noexcept {
    return detail::procedure(&self, name, parameters, body);
}

/// The same for a procedure of a module, whose name stands in the place of the class name.
template <class Body>
std::invoke_result_t<Body&> moduleProcedure(const Name& name, std::initializer_list<Parameter> parameters,
                                            Body&& body) noexcept {
    return detail::procedure(nullptr, name, parameters, body);
}

}  // namespace quorvel
