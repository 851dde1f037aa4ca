// The canvas reset to the picture.
#pragma once

#include "shell/backdrop.h"

namespace terramark {

struct Form1;

/// Reads the picture anew, which takes every flood with it, and makes the Area markers plain. The
/// selection's numbers, the inspector and the colour panel stay. Where the picture cannot be
/// read the box keeps what it shows and a red text says so, which is for the caller to say again
/// should it blank the bar afterwards.
ShowResult RefreshMap(Form1& form);

/// The button "Refresh map".
void RefMap_MouseUp(Form1& form);

}  // namespace terramark
