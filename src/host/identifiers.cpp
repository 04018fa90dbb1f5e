// The class and interface identifiers themselves; everywhere else they are only declared.

#include <initguid.h>

#include "host/interfaces.h"
