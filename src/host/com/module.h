#pragma once

#include <windows.h>

#include "core/text.h"

namespace quorvel::host {

/// The loaded DLL: its handle, and what keeps it loaded.
class Module {
public:
    /// Set once by the loader.
    static void setHandle(HINSTANCE handle);
    static HINSTANCE handle();
    /// The full path of the DLL.
    static Text path();

    /// Live objects and server locks.
    static void addReference();
    static void releaseReference();
    static bool isInUse();

    /// Brackets the life of an object on its own thread: with the last one of the thread the host's
    /// error-report service is let go.
    static void objectBegins();
    static void objectEnds();
};

}  // namespace quorvel::host
