// The life of the editor: start-up, the count labels, the ways out.
#pragma once

namespace terramark {

struct Form1;

/// Brings the editor up; once, before the window is first shown.
void Form_Load(Form1& form);

/// Brings the Countx labels into line with AreaCount and RegionCount. A label that reads as its
/// count already is left alone, so an empty one stays empty at 0.
void UpdateCounts(Form1& form);

/// Asks, and on Yes ends the process. Unsaved changes are neither detected nor mentioned.
void Quit_Click(Form1& form);

/// The window was closed by other means: ends the process without a question.
void Form_Unload(Form1& form);

}  // namespace terramark
