// The colour panel: five buttons choose a colour, three scroll bars set it.
#pragma once

#include "forms/events.h"

namespace terramark {

struct Form1;

/// Moves the scroll bars to a stored colour, or for button 4 to that of the current Region, and
/// makes that the target of the bars. Changes no colour itself.
void PlColor_Click(Form1& form, const forms::PlainEvent& event);

/// Writes the bars' colour to the target: a row of PlayerRGB, or the current Region with its marker
/// and those of its Areas. A Region that is not current any more is unchanged.
void ColBar_Change(Form1& form);

}  // namespace terramark
