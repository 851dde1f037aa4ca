// The keyboard on the map: walking over the markers, pressing them, dragging one, scrolling.
// Presses and drags go through the pointer router to the handlers of the mouse.
#pragma once

#include "forms/events.h"

namespace terramark {

struct Form1;

/// Describes the marker at the cursor in the help bar, which is unchanged where no marker is
/// visible.
void Picture1_GotFocus(Form1& form);

/// Handles the keys that have a meaning on the map. All other keys go on to the next handler, as do
/// the up and down arrows while no marker is dragged.
void Picture1_KeyDown(Form1& form, forms::KeyEvent& event);

}  // namespace terramark
