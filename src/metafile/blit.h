// Lays a bitmap over the raster: stretched or mirrored, and mixed with the brush and what is there
// by a ternary raster operation.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <functional>

#include "metafile/devicecontext.h"

namespace terramark::metafile {

/// A blit as the records give it.
struct Blit {
  enum class Unit { Logical, Pixels };

  int Rop = SourceCopy;  // ternary operation, 0 to 0xFF
  QPoint To;             // logical
  QSize Size;            // in SizeUnit; a negative one mirrors
  QRect From;            // pixels from the top left of the bitmap; may have negative sizes
  Unit SizeUnit = Unit::Logical;
};

/// A blit without a bitmap. Draws nothing when the operation asks for one, or for a brush and there
/// is none.
void DrawBlit(DeviceContext& context, const Blit& blit);

/// Where the blit reaches beyond its bitmap, what is there stays. The bitmap is decoded only when
/// the blit reaches the surface; null for a broken one, and then nothing is drawn that needs it.
void DrawBlit(DeviceContext& context, const Blit& blit,
              const std::function<forms::Picture()>& decode);

}  // namespace terramark::metafile
