#pragma once

#include <cstdint>

#include "core/text.h"
#include "host/com/automation.h"
#include "host/com/com_ptr.h"

namespace quorvel::host {

// What a member of a host object answered. A member without an answer (Empty, Null) answers with the empty
// value; what does not convert is error 13 or 6.

Text textAnswer(const VARIANT& answer);
bool flagAnswer(const VARIANT& answer);
std::int16_t numberAnswer(const VARIANT& answer);
/// A window handle, which 32-bit hosts write as a 32-bit number.
std::intptr_t handleAnswer(const VARIANT& answer);
/// Null for Nothing.
ComPtr<IDispatch> objectAnswer(const VARIANT& answer);

}  // namespace quorvel::host
