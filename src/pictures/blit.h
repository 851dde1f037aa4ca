// Lays a bitmap over the raster: stretched or mirrored, and mixed with the brush and what is there
// by a ternary raster operation.
#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>

#include "pictures/devicecontext.h"

namespace terramark::pictures {

/// A blit as the records give it.
struct Blit {
  int Rop = SourceCopy;  // ternary operation, 0 to 0xFF
  QPoint To;             // logical
  QSize Size;            // logical; a negative one mirrors
  QRect From;            // pixels from the top left of Source; may have negative sizes
  QImage Source;         // 32 bit; null draws only what needs no source
  bool SizeInPixels = false;
};

/// Draws nothing when the operation asks for a source or a brush and there is none.
void DrawBlit(DeviceContext& context, const Blit& blit);

}  // namespace terramark::pictures
