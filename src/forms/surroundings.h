#pragma once

#include "core/text.h"

namespace quorvel::forms {

/// What stands in the host's text before and behind the statement that an element has read there, with the signs and
/// words that join them: " of Critical Inquiry" behind "Spec. issue". It belongs to other elements; a form that gives
/// the statement back puts it there again.
struct Surroundings {
    Text before;
    Text behind;

    bool isEmpty() const { return before.empty() && behind.empty(); }
    /// A statement in its place; without one, what is left.
    Text around(TextView statement) const;
};

/// @param text that the element was given
/// @param left what its `Parse` left of the text
Surroundings surroundingsOf(TextView text, TextView left);

}  // namespace quorvel::forms
