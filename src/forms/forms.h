#pragma once

#include <cstdint>
#include <memory>

#include "forms/form.h"

namespace quorvel::forms {

/// The form of an element type code, without windows yet: 0 to 17 as `Main2.build` counts elements, 18 notes. Null for
/// any other code.
std::shared_ptr<Form> make(std::int16_t whichType);

/// The least type code whose form is of the same class; -1 for a code without form.
std::int16_t classOf(std::int16_t whichType);

}  // namespace quorvel::forms
