#pragma once

#include "host/com/automation.h"

#include "core/run_time_error.h"

namespace quorvel::host {

/// How the platform says that the stack is at its end.
inline constexpr HRESULT kStackOverflow = HRESULT_FROM_WIN32(ERROR_STACK_OVERFLOW);

/// The classic error number for a failed platform or late-bound call.
ErrorNumber errorNumberOf(HRESULT failure);

/// What a failed late-bound call says of its failure; frees its texts.
struct ExceptionInfo : EXCEPINFO {
    ExceptionInfo() : EXCEPINFO{} {}
    ExceptionInfo(const ExceptionInfo&) = delete;
    ExceptionInfo& operator=(const ExceptionInfo&) = delete;
    ~ExceptionInfo() {
        SysFreeString(bstrSource);
        SysFreeString(bstrDescription);
        SysFreeString(bstrHelpFile);
    }
    /// Has the callee fill in what it put off.
    void complete();
};

/// The classic number of a failure that a late-bound call left behind, or the one that the host raised itself.
std::int32_t numberOf(HRESULT failure, const ExceptionInfo& exception);

/// That failure as an error of `object`, with the host's own description and source where it gave them.
/// @param subject what failed: "Add of the formatted text"
RuntimeError automationError(HRESULT failure, const ExceptionInfo& exception, IDispatch* object, TextView subject);

}  // namespace quorvel::host
