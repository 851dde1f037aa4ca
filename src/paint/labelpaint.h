// Draws a label.
#pragma once

#include "forms/controls.h"

class QPainter;
class QRect;

namespace terramark::paint {

/// Draws a label with border, colours and caption into the rectangle, in the painter's font.
void DrawLabel(QPainter& painter, const QRect& area, const forms::Label& label);

}  // namespace terramark::paint
