// The editor's colours on the screen, the same on every desktop.
#pragma once

#include <QColor>

#include "forms/color.h"

namespace terramark::paint {

/// The screen's colour for a system colour or for 0x00BBGGRR.
QColor ScreenColour(forms::Color colour);

}  // namespace terramark::paint
