// The arrow keys that walk through the Areas or the Regions.
#pragma once

#include "forms/events.h"

namespace terramark {

struct Form1;

/// Up makes the next Area or Region current, down the previous one, from the last on to the first.
/// Does nothing without a mark, or without a current item whose marker exists.
void Form_KeyUp(Form1& form, const forms::KeyEvent& event);

}  // namespace terramark
