#pragma once

#include "host/com/automation.h"

#include <cstdint>

#include "host/com/class_factory.h"

namespace quorvel::host {

/// How an object of the class is made; null when the library has no such class.
/// @param clsid a coclass of the type library that hosts may create by name
ClassFactory::Create creatorOf(REFCLSID clsid);
/// @param whichType an element type code
ClassFactory::Create creatorOf(std::int16_t whichType);

}  // namespace quorvel::host
