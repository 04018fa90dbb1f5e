#pragma once

#include <cstdint>
#include <span>

#include "core/text.h"
#include "forms/late_object.h"

/// What forms share, as procedures of the module `CommonFormProcessingFunctions`.
namespace quorvel::forms {

class Control;
class Form;

namespace CommonFormProcessingFunctions {

/// One of the two fields of a widget's `Tag`, the first unless `isSecond`; empty without a widget.
Text GetTag(const Control* widget, bool isSecond);

/// The widget whose first tag field is the text; null when there is none.
Control* getWidgetWithTag(std::span<Control* const> widgets, TextView tag);

/// An empty box becomes the start value, a number goes up by 1, anything else stays; the box gets the focus.
void processSpinUp(Form& form, Control& box, std::int16_t startValue);

/// A number goes down by 1, anything else stays. Where that gives the floor value, the box is emptied, or with `keep`
/// left as it was.
void processSpinDown(Control& box, std::int16_t floorValue, bool keep);

/// Whether a box holds a number of at least `minimum`, which is then kept as the last valid text, or nothing; otherwise
/// the box gets the last valid text back.
bool validateSpinChange(Control& box, Text& lastValidText, std::int32_t minimum);

/// A label in the colour of text, or greyed because its option is not supported.
void ToggleWidgetFont(Control& widget, bool isEnabled);

/// Focuses and selects an option that is visible and not selected yet, and gives the focus back to the host.
void clickOptionButton(Form& form, std::span<Control* const> options, std::size_t index, const LateObjectRef& callback);

/// Puts the pane under the last visible widget, and makes the form as high as that needs.
void adjustFormHeight(Form& form, const Control* lastVisibleWidget, Control& bottomPane);

/// Whether a text is a whole number, with or without a sign, within 32 bits; blanks around it do not matter.
bool isNumeric(TextView text);

}  // namespace CommonFormProcessingFunctions

}  // namespace quorvel::forms
