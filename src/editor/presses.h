// What a press on a control does at its release: the command, or the help topic with Shift.
#pragma once

namespace terramark {

struct Form1;

/// Fills the MouseUp slots of the controls with a help topic or a command.
void JoinPresses(Form1& form);

}  // namespace terramark
