#pragma once

#include <memory>

#include "forms/form.h"
#include "forms/view.h"

/// The forms as windows of the platform.
namespace quorvel::forms::win {

/// Makes the windows of a form, not to be seen yet. The form must be held by a `shared_ptr`; its windows belong to the
/// calling thread.
std::shared_ptr<FormView> makeView(Form& form);

/// What was made once for all forms is given back; a form that comes later makes it again. Nothing happens while there
/// are forms.
void letGo();

}  // namespace quorvel::forms::win
