#pragma once

#include "host/com/automation.h"

#include <cstdint>

#include "host/com/com_ptr.h"

namespace quorvel::host {

/// Codes of forms that are no element types.
inline constexpr std::int16_t kNotesForm = 18;
/// The form of the host's search component, which the library does not make.
inline constexpr std::int16_t kSearchForm = 19;

/// A new form for an element type code (0 to 17) or the notes (18), not yet initialised or shown; it answers
/// `subFormOf`. Empty for a code that has no form of the library's own.
ComPtr<IDispatch> makeForm(std::int16_t whichType);

/// The class of the form for a code: the smallest code with a form of that class. One form serves all of them in
/// turn. The code itself where the library has no form for it.
std::int16_t formClassOf(std::int16_t whichType);

}  // namespace quorvel::host
