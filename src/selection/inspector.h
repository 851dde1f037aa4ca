// The boxes above the backdrop. Each change, typed or assigned, is written to the document at once.
#pragma once

namespace terramark {

struct Form1;

/// The name of the current Region or Area; for an empty box "*UNKNOWN*" is stored.
void EditText_Change(Form1& form);

/// The card symbol of the current Area, by its letter in upper or lower case; other letters are
/// ignored.
void Symb_Change(Form1& form);

/// The armies of the current Region, 1 to 99. A text that reads as another number is replaced by
/// the text before the key.
void Armypc_Change(Form1& form);

/// Both store the text of the box before the key changes it.
void Armypc_KeyDown(Form1& form);
void Armypc_KeyPress(Form1& form);

}  // namespace terramark
