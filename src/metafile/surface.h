// The raster a metafile is drawn into: every pixel passes the clip, the raster operation and the
// limit on the work one picture may cost.
#pragma once

#include <QPolygonF>
#include <QRect>
#include <QRgb>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "forms/floodbits.h"
#include "forms/raster.h"
#include "metafile/metafilerecords.h"
#include "metafile/pixelmask.h"
#include "metafile/scanconvert.h"

namespace terramark::metafile {

/// What an area or a line is painted with.
struct Paint {
  /// FirstOperation to LastOperation; CopyOperation lays the colour over what is there.
  int Operation = CopyOperation;
  QRgb Colour = 0xFF000000;
  /// When not null, tiled from the raster's top left corner in place of Colour; where its alpha is
  /// 0 nothing is painted.
  forms::Picture Pattern;
};

/// The clip: 0 where nothing may be painted; null lets everything through. Whoever changes one that
/// is shared makes a copy first, so keeping one aside costs nothing.
using Clip = std::shared_ptr<PixelMask>;

/// Starts white. Where it only measures nothing is painted; it learns what would be.
class Surface {
 public:
  enum class Use { Draw, Measure };

  /// `size` is in pixels and not empty; `work` is what may be spent. std::bad_alloc when the memory
  /// does not reach, as in whatever makes a clip or a mask.
  Surface(QSize size, Use use, std::int64_t work);

  /// What has been drawn; the surface is of no use afterwards.
  forms::Picture TakeImage() { return std::make_shared<forms::Raster>(std::move(image_)); }
  /// All coordinates are pixels of this, from its top left corner.
  QRect Area() const { return {0, 0, image_.Width, image_.Height}; }

  /// Takes `work`, 0 or more, from what is left. False when it is used up: draw nothing more.
  bool ChargeWork(std::int64_t work);
  std::int64_t WorkLeft() const { return workLeft_; }

  /// To be asked before a shape is drawn, with all it may touch. False when there is nothing to
  /// do: it lies outside, the work is used up, or only the bounds were wanted.
  bool BeginShape(const QRect& bounds);
  /// The bounds that Touch was given while measuring, united.
  QRect MeasuredBounds() const { return measuredBounds_; }

  /// The pixels x0 <= x < x1 of row y, which must lie inside Area().
  void PaintSpan(int y, int x0, int x1, const Paint& paint);
  /// The pixel must lie inside Area().
  void PaintPixel(QPoint at, const Paint& paint);
  /// The part of `rect` that is inside Area().
  void PaintRectangle(const QRect& rect, const Paint& paint);
  /// The pixels of `mask`, whose top left corner lies at `at`.
  void PaintMask(const PixelMask& mask, QPoint at, const Paint& paint);
  /// The inside of the polygons as ScanPolygons has it.
  void PaintPolygons(const std::vector<QPolygonF>& polygons, FillRule rule, const Paint& paint);
  /// A pixel as a blit writes it, past the paint's operation but not past the clip. It must lie
  /// inside Area(), as that of At.
  void WritePixel(QPoint at, QRgb colour);
  QRgb At(QPoint at) const { return image_.Pixels[image_.IndexOf(at.x(), at.y())]; }
  /// Fills from `seed` up to the pixels of `colour`, or over those of `colour` alone. A seed
  /// outside Area() fills nothing.
  void Flood(QPoint seed, QRgb colour, forms::FloodStops stops, const Paint& paint);

  const Clip& CurrentClip() const { return clip_; }
  void SetClip(Clip clip) { clip_ = std::move(clip); }
  /// The rectangles alone are open from now on.
  void ClipTo(const std::vector<QRect>& rects);
  void IntersectClip(const QRect& rect);
  void ExcludeClip(const QRect& rect);
  /// Moves the clip; what comes in from outside is closed.
  void OffsetClip(QPoint by);

 private:
  bool Clipped(int x, int y) const { return clip_ && clip_->Row(y)[x] == 0; }
  /// Takes the bits of clipped pixels from a row of 64 pixels a word.
  void ClearClippedBits(int y, std::span<std::uint64_t> row) const;
  void FillClip(const QRect& rect, std::uint8_t value);
  Clip NewClip(std::uint8_t value) const;

  QRgb* Row(int y) { return image_.Pixels.data() + image_.IndexOf(0, y); }

  forms::Raster image_;
  Clip clip_;
  Use use_;
  QRect measuredBounds_;
  std::int64_t workLeft_;
};

}  // namespace terramark::metafile
