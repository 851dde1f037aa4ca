// What the release of a press on a control does: its command or, with Shift, its help topic.
#pragma once

namespace terramark {

struct Form1;

/// Fills the MouseUp slots of the controls that have a help topic or a command. A button of a
/// command that is not in the control table ends the program, with the button's name.
void ConnectPresses(Form1& form);

}  // namespace terramark
