#include "core/procedure.h"

#include <exception>
#include <new>
#include <stdexcept>

namespace quorvel {

void reportCurrentException(const Instrumented& failed, TextView procedure) noexcept {
    const auto report = [&](const RuntimeError& error) {
        VBWPROTECTOR::ofThisApartment().reportError(error, failed, procedure);
    };
    try {
        try {
            throw;
        } catch (const RuntimeError& error) {
            report(error);
        } catch (const std::out_of_range&) {
            report(RuntimeError(ErrorNumber::SubscriptOutOfRange));
        } catch (const std::bad_alloc&) {
            report(RuntimeError(ErrorNumber::OutOfMemory));
        } catch (const std::exception& error) {
            const std::string_view what = error.what();
            report(RuntimeError(ErrorNumber::InternalError, Text(what.begin(), what.end())));
        } catch (...) {
            report(RuntimeError(ErrorNumber::InternalError));
        }
    } catch (...) {  // NOLINT(bugprone-empty-catch): no memory is left to say so
    }
}

}  // namespace quorvel
