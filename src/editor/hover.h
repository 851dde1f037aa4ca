// What the help bar says of the control under the pointer.
#pragma once

namespace terramark {

struct Form1;

/// Fills the MouseMove slots. Controls that are left out leave the bar as it is: the frames, the
/// scroll bars and the plain labels.
void JoinHover(Form1& form);

}  // namespace terramark
