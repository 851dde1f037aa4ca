// The keys that the form hears before the control that has the keyboard.
#pragma once

#include "forms/events.h"

namespace terramark {

struct Form1;

/// F1: the help on what has the keyboard. F6: to the map and back. With Ctrl, plus, minus and 0:
/// the zoom.
void Form_KeyDown(Form1& form, forms::KeyEvent& event);

}  // namespace terramark
