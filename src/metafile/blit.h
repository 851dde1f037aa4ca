// Draws a bitmap on the surface: stretched or mirrored, and combined with the brush and the
// destination by a ternary raster operation.
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

/// A blit without a bitmap. Draws nothing when the operation needs a source, or a brush and none is
/// selected.
void DrawBlit(DeviceContext& context, const Blit& blit);

/// A blit with a bitmap; beyond the bitmap the destination stays. `decode` is called only when the
/// blit reaches the surface. It may return null for a broken bitmap; then an operation that needs a
/// source draws nothing.
void DrawBlit(DeviceContext& context, const Blit& blit,
              const std::function<forms::Picture()>& decode);

}  // namespace terramark::metafile
