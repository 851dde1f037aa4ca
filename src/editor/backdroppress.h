// A press on the bare backdrop.
#pragma once

#include "forms/events.h"

namespace terramark {

struct Form1;

/// Acts when any button is released. With Ctrl alone it adds an Area whose fill point is under the
/// pointer. With no key it refreshes the canvas and clears the selection.
void Picture1_MouseUp(Form1& form, const forms::MouseEvent& event);

}  // namespace terramark
