#pragma once

#include <windows.h>

namespace quorvel::host {

/// Registers a window class of the library, unless it is registered already. Such a class is known under its
/// name and the library's own module handle alone.
/// @param name a literal
/// @return false when the platform does not register it
bool registerWindowClass(const wchar_t* name, WNDPROC procedure);

/// Gives up all of them; there are no windows of theirs any more when the library is not in use.
void unregisterWindowClasses() noexcept;

}  // namespace quorvel::host
