#include "host/com/automation_error.h"

#include "host/com/host_reference.h"
#include "host/com/variant.h"

namespace quorvel::host {

namespace {

struct KnownFailure {
    HRESULT failure;
    ErrorNumber number;
};

constexpr KnownFailure kKnownFailures[] = {
    {DISP_E_UNKNOWNNAME, ErrorNumber::NoSuchMember},
    {DISP_E_MEMBERNOTFOUND, ErrorNumber::NoSuchMember},
    {DISP_E_TYPEMISMATCH, ErrorNumber::TypeMismatch},
    {DISP_E_BADVARTYPE, ErrorNumber::TypeMismatch},
    {DISP_E_OVERFLOW, ErrorNumber::Overflow},
    {DISP_E_BADINDEX, ErrorNumber::SubscriptOutOfRange},
    {DISP_E_BADPARAMCOUNT, ErrorNumber::WrongNumberOfArguments},
    {DISP_E_PARAMNOTOPTIONAL, ErrorNumber::ArgumentNotOptional},
    {DISP_E_PARAMNOTFOUND, ErrorNumber::ArgumentNotOptional},
    {kStackOverflow, ErrorNumber::OutOfStackSpace},
    {E_OUTOFMEMORY, ErrorNumber::OutOfMemory},
    {REGDB_E_CLASSNOTREG, ErrorNumber::CannotCreateObject},
    {CO_E_CLASSSTRING, ErrorNumber::CannotCreateObject},
    {RPC_E_DISCONNECTED, ErrorNumber::ServerUnavailable},
    {CO_E_OBJNOTCONNECTED, ErrorNumber::ServerUnavailable},
    {HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE), ErrorNumber::ServerUnavailable},
};

/// The number that a host raised itself: Visual Basic hands it over as a code of the control facility.
std::int32_t numberOf(HRESULT failure, const EXCEPINFO& exception) {
    if (failure == DISP_E_EXCEPTION) {
        if (exception.wCode != 0) {
            return exception.wCode;
        }
        if (HRESULT_FACILITY(exception.scode) == FACILITY_CONTROL) {
            return HRESULT_CODE(exception.scode);
        }
        failure = exception.scode;
    }
    return static_cast<std::int32_t>(errorNumberOf(failure));
}

}  // namespace

ErrorNumber errorNumberOf(HRESULT failure) {
    for (const KnownFailure& known : kKnownFailures) {
        if (known.failure == failure) {
            return known.number;
        }
    }
    return ErrorNumber::AutomationError;
}

RuntimeError automationError(HRESULT failure, EXCEPINFO& exception, IDispatch* object) {
    if (failure == DISP_E_EXCEPTION && exception.pfnDeferredFillIn != nullptr) {
        exception.pfnDeferredFillIn(&exception);
    }
    const std::int32_t number = numberOf(failure, exception);
    Text description(view(exception.bstrDescription));
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrHelpFile);
    if (description.empty()) {
        description = descriptionOf(static_cast<ErrorNumber>(number));
    }
    return {number, std::move(description), std::make_shared<HostReference>(object)};
}

}  // namespace quorvel::host
