// Reads a Map Layout into the emptied document.
#pragma once

#include <string_view>

namespace terramark {

struct Form1;

/// Fills the tables, makes and places the markers and shows the picture. A missing picture is
/// reported in a box, and the rest of the file is not read. Any other fault is reported in a box
/// and ends the process. The document must be empty, as after ClearMap, and LayoutFile must be the
/// file's name.
void ReadMapFile(Form1& form, std::string_view bytes);

}  // namespace terramark
