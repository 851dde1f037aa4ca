// The arrow keys that walk through the Areas or the Regions.
#pragma once

#include "forms/events.h"

namespace terramark {

struct Form1;

/// Up makes the next Area or Region current, down the previous one, round the ends. Needs a mark
/// and something current whose marker stands; else the key does nothing here.
void Form_KeyUp(Form1& form, const forms::KeyEvent& event);

}  // namespace terramark
