// Adding an Area or a Region to the map.
#pragma once

#include "forms/events.h"

namespace terramark {

struct Form1;

/// The button "Add Area", and a press on the backdrop with Ctrl: adds an Area with the next number,
/// its marker and its defaults. With Ctrl alone the marker is placed at X, Y, in pixels of the
/// picture, otherwise on the marker before it. From CountLimit Areas on it adds nothing.
void AddTer_MouseUp(Form1& form, const forms::MouseEvent& event);

/// The button "Add Region": adds a Region with the next number, which becomes current. From
/// CountLimit Regions on it adds nothing.
void AddCont_MouseUp(Form1& form);

}  // namespace terramark
