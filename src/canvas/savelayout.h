// The command Save a Map Layout.
#pragma once

namespace terramark {

struct Form1;

/// The button "Save a Map Layout". A map that breaks a rule is not saved, and no name is asked
/// for. A file that cannot be written is said in red, with the reason, and leaves the document,
/// the names and any old file as they were; a file damaged all the same is said to be. An Area
/// whose link string counts no neighbours stops the writing where it stands; the cut text is put in
/// place all the same, and the red text says why.
void SaveCFG_MouseUp(Form1& form);

}  // namespace terramark
