// The colour panel: five buttons choose a colour, three scroll bars set it.
#pragma once

#include "forms/events.h"

namespace terramark {

struct Form1;

/// Loads the scroll bars with a stored colour, or for button 4 with that of the current Region, and
/// makes it the target of the bars. Changes no colour by itself.
void PlColor_Click(Form1& form, const forms::PlainEvent& event);

/// Writes the bars' colour to the target: a row of PlayerRGB, or the current Region with its marker
/// and those of its Areas. A Region that is current no longer takes no colour.
void ColBar_Change(Form1& form);

}  // namespace terramark
