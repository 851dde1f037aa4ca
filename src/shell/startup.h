// The life of the editor: start-up and the ways out.
#pragma once

namespace terramark {

struct Form1;

/// Brings the editor up; once, before the window is first shown.
void Form_Load(Form1& form);

/// Asks, and on Yes ends the process. Unsaved changes are neither detected nor mentioned.
void Quit_Click(Form1& form);

/// The window was closed by other means: ends the process without a question.
void Form_Unload(Form1& form);

}  // namespace terramark
