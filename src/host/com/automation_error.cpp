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

}  // namespace

ErrorNumber errorNumberOf(HRESULT failure) {
    for (const KnownFailure& known : kKnownFailures) {
        if (known.failure == failure) {
            return known.number;
        }
    }
    return ErrorNumber::AutomationError;
}

void ExceptionInfo::complete() {
    if (pfnDeferredFillIn != nullptr) {
        pfnDeferredFillIn(this);
        pfnDeferredFillIn = nullptr;
    }
}

std::int32_t numberOf(HRESULT failure, const ExceptionInfo& exception) {
    if (failure == DISP_E_EXCEPTION) {
        if (exception.wCode != 0) {
            return exception.wCode;
        }
        failure = exception.scode;
    }
    // Visual Basic hands its numbers over as codes of the control facility.
    return HRESULT_FACILITY(failure) == FACILITY_CONTROL ? HRESULT_CODE(failure)
                                                         : static_cast<std::int32_t>(errorNumberOf(failure));
}

RuntimeError automationError(HRESULT failure, const ExceptionInfo& exception, IDispatch* object, TextView subject) {
    const std::int32_t number = numberOf(failure, exception);
    Text description(view(exception.bstrDescription));
    if (description.empty()) {
        description = descriptionOf(static_cast<ErrorNumber>(number));
    }
    if (const TextView source = view(exception.bstrSource); !source.empty()) {
        description += concatenate({u" (", source, u")"});
    }
    return {number, concatenate({description, u": ", subject}), std::make_shared<HostReference>(object)};
}

}  // namespace quorvel::host
