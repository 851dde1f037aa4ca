// Deleting the last Area, or a Region.
#pragma once

namespace terramark {

struct Form1;

/// The button "Delete": asks, then deletes the current Area if it is the last one, or the current
/// Region, and the Regions above it move down by one number. Refuses an item that still has links.
/// Needs a mark.
void DelControl_MouseUp(Form1& form);

}  // namespace terramark
