#pragma once

#include "host/com/automation.h"

// Generated from the interface description. It declares the coclasses as global classes; ours are in a
// namespace.
#include <QuorvelTemplate.h>
