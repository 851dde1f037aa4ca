// The keyboard on the map: walking over the markers, pressing them, carrying one, scrolling. All
// but the walk and the scrolling goes by way of the pointer router to the mouse's handlers.
#pragma once

#include "forms/events.h"

namespace terramark {

struct Form1;

/// The help bar describes the marker that has the ring, and stays as it is where none is seen.
void Picture1_GotFocus(Form1& form);

/// Takes the keys that mean something on the map; all others, and the arrows up and down while no
/// marker is held, go on to whom they were meant for.
void Picture1_KeyDown(Form1& form, forms::KeyEvent& event);

}  // namespace terramark
