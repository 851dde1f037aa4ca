// Bringing a new Area or a new Region into the map.
#pragma once

#include "forms/events.h"

namespace terramark {

struct Form1;

/// The button "Add Area", and a press on the backdrop with Ctrl: the next number, its marker and
/// its defaults. With Ctrl alone the marker stands at X, Y, taken as pixels of the picture as they
/// come, else on the marker before it. Adds nothing from CountLimit Areas on.
void AddTer_MouseUp(Form1& form, const forms::MouseEvent& event);

/// The button "Add Region": the next number becomes current. Adds nothing from CountLimit Regions
/// on.
void AddCont_MouseUp(Form1& form);

}  // namespace terramark
