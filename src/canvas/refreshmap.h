// Resets the canvas to the picture.
#pragma once

#include "shell/backdrop.h"

namespace terramark {

struct Form1;

/// Reads the picture again, which removes every flood, and makes the Area markers plain. The
/// current numbers, the inspector and the colour panel stay. If the picture cannot be read the box
/// keeps its content, and a red message says so; a caller that blanks the bar afterwards must
/// report it again.
ShowResult RefreshMap(Form1& form);

/// The button "Refresh map".
void RefMap_MouseUp(Form1& form);

}  // namespace terramark
