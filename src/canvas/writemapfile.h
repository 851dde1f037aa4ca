// Writes the document as the text of a Map Layout.
#pragma once

#include "layoutfile/layoutwriter.h"

namespace terramark {

struct Form1;

/// Clears the selection, gives an empty header its default, in the box too, and writes the map. An
/// Area of a Region without a card symbol gets a random one in the file only. If an Area without
/// neighbours has stopped the writing, a red message says so.
LayoutWritten WriteMapFile(Form1& form);

}  // namespace terramark
