// Connects the handlers to the events of the controls.
#pragma once

namespace terramark {

struct Form1;

/// Fills the event slots of the main window and its controls; once, before Form_Load.
void ConnectHandlers(Form1& form);

}  // namespace terramark
