// Taking the last Area, or a Region, off the map.
#pragma once

namespace terramark {

struct Form1;

/// The button "Delete": asks, then removes the current Area when it is the last one, or the current
/// Region, over which the Regions above it close up. Refuses what still has links. Needs a mark.
void DelControl_MouseUp(Form1& form);

}  // namespace terramark
