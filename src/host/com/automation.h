#pragma once

// The platform's COM and OLE Automation headers, in the one order in which they compile.
#include <windows.h>

#include <dispex.h>
#include <ole2.h>
