// Finds the screen font for a metafile's font: a family of the same letter widths, its size in
// pixels, and drawn without grey edges.
#pragma once

#include <QFont>

#include "pictures/devicecontext.h"

namespace terramark::pictures {

struct MatchedFont {
  QFont Face;
  int Ascent = 0;   // pixels
  int Descent = 0;  // pixels
  /// How much wider than its own proportion the font is to be drawn.
  double Stretch = 1;
  /// How far each pixel of height leans right, for a font that has no italic of its own.
  double Slant = 0;
};

/// The font for the selected one. One of the families that are expected is named even when it is
/// not installed; the size is 1 to 4096 pixels.
MatchedFont MatchFont(const DeviceContext& context);

}  // namespace terramark::pictures
