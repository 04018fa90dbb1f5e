#pragma once

#include "host/com/automation.h"

#include "host/com/com_ptr.h"

namespace quorvel::host {

/// The type library that is embedded in the DLL. The platform loads one by a path, and not by every path by which
/// it loads a DLL (none of more than 260 characters, and not every device path), so its other forms are tried.
HRESULT loadEmbeddedTypeLibrary(ComPtr<ITypeLib>& library);

/// The same, or where no form serves the registered library of exactly this version.
HRESULT loadTypeLibrary(ComPtr<ITypeLib>& library);

}  // namespace quorvel::host
