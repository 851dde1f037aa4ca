// The order in which the keyboard walks over the markers: Areas by number, then Regions.
#pragma once

#include "forms/controls.h"

namespace terramark {

struct Form1;

/// The marker so many steps after another one, from the last on to the first; `steps` may be
/// negative. From null, the first step leads to the first marker, or backwards to the last. Null
/// where no marker is visible.
forms::Label* MarkerFrom(Form1& form, const forms::Control* marker, int steps);
forms::Label* FirstMarker(Form1& form);
forms::Label* LastMarker(Form1& form);

}  // namespace terramark
