// What a press on a control does at its release: the command, or the help topic with Shift.
#pragma once

namespace terramark {

struct Form1;

/// Fills the MouseUp slots of the controls with a help topic or a command. Ends the program, by
/// name, over a button of a command that is not in the control table.
void ConnectPresses(Form1& form);

}  // namespace terramark
