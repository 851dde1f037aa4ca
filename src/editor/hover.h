// What the help bar says about the control under the pointer.
#pragma once

namespace terramark {

struct Form1;

/// Fills the MouseMove slots, by the kinds of the controls. Markers describe themselves. The form,
/// the picture, the boxes, the buttons and the two bars blank the help bar. All other controls
/// leave it unchanged.
void ConnectHover(Form1& form);

}  // namespace terramark
