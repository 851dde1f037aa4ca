// A layout that has been read, on its way into the form.
#pragma once

#include "document/maplayout.h"
#include "shell/backdrop.h"

namespace terramark {

struct Form1;

/// Takes over the tables, and shows the header. Makes the markers, none of which can be seen yet.
/// The document must be empty, as ClearMap leaves it.
void ShowHead(Form1& form, const MapLayout& layout);

/// Takes over the tables, names and paints the markers that have a line in the layout, and places
/// them, in the pixels of this screen. ShowHead has made the markers.
void PlaceMarkers(Form1& form, const MapLayout& layout);

/// Shows the picture and, over it, the Region markers and then the Area markers in rising order.
/// Where the picture cannot be read, the markers stay hidden.
ShowResult ShowMap(Form1& form);

}  // namespace terramark
