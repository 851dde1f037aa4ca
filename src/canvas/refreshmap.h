// The canvas reset to the picture.
#pragma once

#include "forms/fault.h"

namespace terramark {

struct Form1;

/// Reads the picture anew, which takes every flood with it, and makes the Area markers plain. The
/// selection's numbers, the inspector and the colour panel stay. Gives why the picture cannot be
/// read, or nothing: the box keeps what it shows then and a red text says so, which is for the
/// caller to say again should it blank the bar afterwards.
forms::Fault RefreshMap(Form1& form);

/// The button "Refresh map".
void RefMap_MouseUp(Form1& form);

}  // namespace terramark
