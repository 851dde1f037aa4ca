// The keys that the form receives before the control with the focus.
#pragma once

#include "forms/events.h"

namespace terramark {

struct Form1;

/// F1: help about the control with the focus. F6: to the map and back. Ctrl with plus, minus, 0 and
/// 9: the zoom.
void Form_KeyDown(Form1& form, forms::KeyEvent& event);

}  // namespace terramark
