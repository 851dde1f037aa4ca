// Writes the document as the text of a Map Layout.
#pragma once

#include "layoutfile/layouttext.h"

namespace terramark {

struct Form1;

/// Clears the selection, gives an empty header its default, in the box too, and writes the map.
/// False when an Area without neighbours stopped it at the bridge lines, which is said in red.
bool WriteMapFile(Form1& form, LayoutText& file);

}  // namespace terramark
