// The marked Areas become the neighbours of the current one.
#pragma once

namespace terramark {

struct Form1;

/// The button "Set Neighbours": the marked Areas become the complete list of the current Area's
/// neighbours, and the current Area is added to the list of each. Entries in those lists are never
/// removed. Below two marks it does nothing. If no Area is marked, or the current one does not
/// exist, it reports that.
void MakeNeibor_MouseUp(Form1& form);

}  // namespace terramark
