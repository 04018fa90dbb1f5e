#pragma once

#include "host/com/automation.h"

namespace quorvel::host {

/// For whom the classes are registered.
enum class RegistrationScope {
    Machine,
    CurrentUser,
};

/// Writes the creatable classes of the embedded type library, and the library itself, to the registry.
/// What a failing registration has written is taken back.
HRESULT registerClasses(RegistrationScope scope);

/// Takes everything back that `registerClasses` wrote; what is not there is no failure. The names of the
/// classes stay as long as the library of the other width is registered.
HRESULT unregisterClasses(RegistrationScope scope);

}  // namespace quorvel::host
