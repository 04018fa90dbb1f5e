#pragma once

#include <windows.h>

#include "core/text.h"
#include "forms/view.h"
#include "forms/win/density.h"

/// What differs for the windows that show rich text. They count a line's end as one character, and so does a selection.
namespace quorvel::forms::win::rich_text {

/// A new window: texts of any length, and changes by the user are told (EN_CHANGE).
void prepare(HWND box);

/// Shows a document in RTF, or any other text as it is. A user's caret stays where it is, and so does what is scrolled
/// to; nobody is told.
void show(HWND box, TextView document, bool isReadOnly);

/// What is shown, with "\r\n" at the end of a line.
Text plainText(HWND box);

Selection selection(HWND box);
void setSelection(HWND box, const Selection& selection);

/// Gives it the system's message font and the density of its form: sizes are stated in points, for which the window
/// takes the screen's density.
void setDensity(HWND box, const Density& density);

}  // namespace quorvel::forms::win::rich_text
