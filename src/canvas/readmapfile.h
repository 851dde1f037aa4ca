// Reads a Map Layout into the emptied document.
#pragma once

#include <string_view>

namespace terramark {

struct Form1;

/// Fills the tables, makes and places the markers and shows the picture. A picture that is not
/// there is told in a box, and the rest of the file is not read then. Any other failure is told in
/// a box and ends the process. The document must be empty, as ClearMap leaves it, and LayoutFile
/// name the file.
void ReadMapFile(Form1& form, std::string_view bytes);

}  // namespace terramark
