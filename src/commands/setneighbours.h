// The marked Areas become the neighbours of the current one.
#pragma once

namespace terramark {

struct Form1;

/// The button "Set Neighbours": the marked Areas are the complete new list of the current Area, and
/// each of them gets the current Area into its own list. Links on the far side are only ever added.
/// Below two marks it does nothing; with no Area marked, or the current one gone, it says so.
void MakeNeibor_MouseUp(Form1& form);

}  // namespace terramark
