// The marked Areas become the members of the current Region.
#pragma once

namespace terramark {

struct Form1;

/// The button "Set Region": marked Areas join the current Region, its Areas without a mark leave
/// it, and its colour is white again. Without a current Region it does nothing.
void SetCont_MouseUp(Form1& form);

}  // namespace terramark
