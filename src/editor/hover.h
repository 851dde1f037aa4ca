// What the help bar says of the control under the pointer.
#pragma once

namespace terramark {

struct Form1;

/// Fills the MouseMove slots, by the kinds of the controls: the markers describe themselves; the
/// form, the picture, the boxes, the buttons and the two bars blank the bar; the rest leaves it as
/// it is.
void ConnectHover(Form1& form);

}  // namespace terramark
