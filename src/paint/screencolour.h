// The editor's colours on a screen, whatever the desktop's theme.
#pragma once

#include <QColor>

#include "forms/color.h"

namespace terramark::paint {

/// A system colour or 0x00BBGGRR on the screen.
QColor ScreenColour(forms::Color colour);

}  // namespace terramark::paint
