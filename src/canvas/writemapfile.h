// Writes the document as the text of a Map Layout.
#pragma once

#include "layoutfile/layoutwriter.h"

namespace terramark {

struct Form1;

/// Clears the selection, gives an empty header its default, in the box too, and writes the map. An
/// Area without a card symbol gets one drawn for the file alone. That an Area without neighbours
/// has stopped the writing is said in red.
LayoutWritten WriteMapFile(Form1& form);

}  // namespace terramark
