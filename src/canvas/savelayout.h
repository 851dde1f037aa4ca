// The command Save a Map Layout.
#pragma once

namespace terramark {

struct Form1;

/// The button "Save a Map Layout". A map that breaks a rule is not saved, and no name is asked for.
/// A file that cannot be written is reported in red, with the reason, and leaves the document, the
/// names and an old file as they were; if the file was damaged nevertheless, that is reported too.
/// An Area whose link string has the count 0 stops the writing there. The incomplete text is still
/// saved, and a red message gives the reason.
void SaveCFG_MouseUp(Form1& form);

}  // namespace terramark
