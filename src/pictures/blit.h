// Lays a bitmap over the raster: stretched or mirrored, and mixed with the brush and what is there
// by a ternary raster operation.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include "pictures/devicecontext.h"

namespace terramark::pictures {

/// A blit as the records give it.
struct Blit {
  int Rop = SourceCopy;   // ternary operation, 0 to 0xFF
  QPoint To;              // logical
  QSize Size;             // logical; a negative one mirrors
  QRect From;             // pixels from the top left of Source; may have negative sizes
  forms::Picture Source;  // null draws only what needs no source
  bool SizeInPixels = false;
};

/// Whether the blit reaches the surface, as Surface::Touch has it: to be asked before its bitmap is
/// decoded.
bool BlitTouches(DeviceContext& context, const Blit& blit);

/// Draws nothing when the operation asks for a source or a brush and there is none. Where the blit
/// reaches beyond its bitmap, what is there stays.
void DrawBlit(DeviceContext& context, const Blit& blit);

}  // namespace terramark::pictures
