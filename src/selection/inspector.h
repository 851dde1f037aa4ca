// The boxes above the backdrop: each change writes straight into the document, typed or assigned.
#pragma once

namespace terramark {

struct Form1;

/// Name of the current Region or Area; an emptied box stores "*UNKNOWN*".
void EditText_Change(Form1& form);

/// Card symbol of the current Area, by its letter in either case; other letters are ignored.
void Symb_Change(Form1& form);

/// Armies of the current Region, 1 to 99. A text that reads below or above, or as 0, gives way to
/// the text before the key.
void Armypc_Change(Form1& form);

/// Both keep the text of the box as it was before the key changes it.
void Armypc_KeyDown(Form1& form);
void Armypc_KeyPress(Form1& form);

}  // namespace terramark
