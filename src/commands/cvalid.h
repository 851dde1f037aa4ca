// The button "Validate Map".
#pragma once

namespace terramark {

struct Form1;

/// Judges the map. A fault is shown in red; a good map is flooded from every Area's fill point, so
/// that the user sees how far each fill spreads. That there is no memory for it is said in red.
void Cvalid_MouseUp(Form1& form);

}  // namespace terramark
