#pragma once

// The platform types that the interface description names.
#include <oaidl.h>
