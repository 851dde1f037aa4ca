// Emptying the map.
#pragma once

namespace terramark {

struct Form1;

/// The button "Clear whole Map": asks, then empties the document and the picture box. The names of
/// the files and the current numbers stay.
void DelAll_MouseUp(Form1& form);

}  // namespace terramark
