#pragma once

#include <deque>

#include "forms/control.h"
#include "forms/view.h"

namespace quorvel::forms {

/// The frame at the foot of every form, with the preview and the buttons.
inline constexpr TextView kBottomPane = u"BottomPane";

/// Decides which controls are shown and gives those their places: line below line, frames as high as what they hold,
/// those without visible content closed up. The bottom pane is given its place inside, but is left at the top:
/// `adjustFormHeight` moves it.
/// @param width of the client area
/// @return the lowest visible control outside the bottom pane; null when there is none
Control* layOutControls(std::deque<Control>& controls, const DialogUnits& units, Twips width);

}  // namespace quorvel::forms
