// Transfers a layout that has been read to the form.
#pragma once

#include "document/maplayout.h"
#include "shell/backdrop.h"

namespace terramark {

struct Form1;

/// Copies the tables, shows the header, and makes the markers, which are still hidden. The document
/// must be empty, as after ClearMap.
void ShowHead(Form1& form, const MapLayout& layout);

/// Copies the tables. Names and colours the markers that have a line in the layout, and places
/// them, in pixels of this screen. ShowHead has made the markers.
void PlaceMarkers(Form1& form, const MapLayout& layout);

/// Shows the picture and on it the Region markers and then the Area markers, by their numbers. If
/// the picture cannot be read the markers stay hidden.
ShowResult ShowMap(Form1& form);

}  // namespace terramark
