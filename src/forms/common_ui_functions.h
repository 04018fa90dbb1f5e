#pragma once

#include "core/text.h"
#include "forms/late_object.h"

/// What forms share, as procedures of the module `CommonUIFunctions`.
namespace quorvel::forms {

class Control;
class Form;

namespace CommonUIFunctions {

/// @param icon a picture object with a `Handle`, or nothing, which leaves the form without
void SetFormIcon(Form& form, const LateObjectRef& icon);

/// Trims the blanks of a box, which raises no change when there are none.
void PreprocessTextField(Control& box);

/// A text as a part of an RTF document.
Text escaped(TextView text);

/// A one-paragraph document of a text that is RTF already, or escaped.
Text toRTFString(TextView rtfStr);

/// What a preview shows: a document as it is, any other text escaped and wrapped.
Text asDocument(TextView text);

}  // namespace CommonUIFunctions

}  // namespace quorvel::forms
