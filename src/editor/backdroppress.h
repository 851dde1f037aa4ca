// A press on the bare backdrop.
#pragma once

#include "forms/events.h"

namespace terramark {

struct Form1;

/// Acts at the release, with any button: Ctrl alone adds an Area whose fill point is the point
/// pressed; without a key the canvas is refreshed and the selection cleared.
void Picture1_MouseUp(Form1& form, const forms::MouseEvent& event);

}  // namespace terramark
