#pragma once

#include "core/text.h"

namespace quorvel::forms {

/// A text, plain or RTF, in which a title has its own letters: where the text has the same title in other capitals,
/// those of the title. Unchanged where the title does not stand in it.
Text withLettersOf(TextView text, TextView title);

}  // namespace quorvel::forms
