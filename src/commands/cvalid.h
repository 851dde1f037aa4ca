// The button "Validate Map".
#pragma once

namespace terramark {

struct Form1;

/// Checks the map. A fault is shown in red. A good map is flooded from the fill point of every
/// Area, so that the user sees how far each fill spreads. Too little memory for that is reported in
/// red.
void Cvalid_MouseUp(Form1& form);

}  // namespace terramark
