#pragma once

#include "host/com/automation.h"

#include "core/run_time_error.h"

namespace quorvel::host {

/// How the platform says that the stack is at its end.
inline constexpr HRESULT kStackOverflow = HRESULT_FROM_WIN32(ERROR_STACK_OVERFLOW);

/// The classic error number for a failed platform or late-bound call.
ErrorNumber errorNumberOf(HRESULT failure);

/// The error that a late-bound call to `object` left behind. Frees the texts of `exception`.
RuntimeError automationError(HRESULT failure, EXCEPINFO& exception, IDispatch* object);

}  // namespace quorvel::host
