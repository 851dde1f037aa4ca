// The marked Areas become the members of the current Region.
#pragma once

namespace terramark {

struct Form1;

/// The button "Set Region": the marked Areas join the current Region, its other Areas leave it, and
/// its colour becomes white. Without a current Region it does nothing.
void SetCont_MouseUp(Form1& form);

}  // namespace terramark
