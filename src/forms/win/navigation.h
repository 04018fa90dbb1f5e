#pragma once

#include <deque>
#include <functional>

#include "forms/control.h"

/// Where the keyboard takes the focus, read off the controls in the order of their rows. Null where it takes it
/// nowhere.
namespace quorvel::forms::win {

/// Whether a control can have the focus: it is one that can, is shown, enabled, and has a window.
using CanFocus = std::function<bool(const Control&)>;

/// Kinds that take the focus. What a preview shows is read and marked with the mouse: it is no stop of the Tab key.
bool takesFocus(const Control& control);

/// The next stop of the Tab key behind a control (null: from the start), round the end. Options of a group are one
/// stop: the selected one.
Control* nextStop(std::deque<Control>& controls, const Control* from, bool isForward, const CanFocus& canFocus);

/// The neighbour to which an arrow key goes: within a group of options, or among buttons that stand together.
Control* neighbour(std::deque<Control>& controls, const Control& from, bool isForward, const CanFocus& canFocus);

/// Which control a mnemonic means. A label's or a frame's leads to the next control that can have the focus; one that
/// several have goes from one to the next, beginning behind the focus.
Control* ofMnemonic(std::deque<Control>& controls, const Control* focus, char16_t letter, const CanFocus& canFocus);

/// The arrows beside a text box; null when it has none.
Control* upDownOf(std::deque<Control>& controls, const Control& box);

}  // namespace quorvel::forms::win
