// The raster that a metafile is drawn on. Every pixel passes the clip. The functions that paint
// spend from the budget of the metafile; for WritePixel the caller does.
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
#include "metafile/budget.h"
#include "metafile/metafilerecords.h"
#include "metafile/pixelmask.h"
#include "metafile/scanconvert.h"

namespace terramark::metafile {

/// What an area or a line is painted with.
struct Paint {
  /// FirstOperation to LastOperation; CopyOperation replaces the destination.
  int Operation = CopyOperation;
  QRgb Colour = 0xFF000000;
  /// If not null, used instead of Colour, tiled from the raster's top left corner. Pixels with
  /// alpha 0 are not painted.
  forms::Picture Pattern;
};

/// The clip: 0 where nothing may be painted; null allows everything. It is copied before a change
/// while it is shared, so that saving it costs nothing.
using Clip = std::shared_ptr<PixelMask>;

/// Initially white. A surface that measures paints nothing; it learns the bounds of what would be
/// painted.
class Surface {
 public:
  enum class Use { Draw, Measure };

  /// `size` is in pixels and not empty. std::bad_alloc when memory runs out, here and in every
  /// function that makes a clip or a mask. Once the budget is used up nothing more is painted.
  Surface(QSize size, Use use, Budget& budget);

  /// What has been drawn; the surface must not be used afterwards.
  forms::Picture TakeImage() { return std::make_shared<forms::Raster>(std::move(image_)); }
  /// All coordinates are pixels in this area, counted from its top left corner.
  QRect Area() const { return {0, 0, image_.Width, image_.Height}; }

  /// The budget of the metafile.
  Budget& Cost() const { return budget_; }

  /// To be called before a shape is drawn, with the bounds of what it may paint. False when there
  /// is nothing to draw: the shape is outside, the budget is used up, or the surface only measures.
  bool BeginShape(const QRect& bounds);
  /// The union of the bounds passed to BeginShape while measuring.
  QRect MeasuredBounds() const { return measuredBounds_; }

  /// Paints the pixels x0 <= x < x1 of row y, which must be inside Area().
  void PaintSpan(int y, int x0, int x1, const Paint& paint);
  /// The pixel must be inside Area().
  void PaintPixel(QPoint at, const Paint& paint);
  /// Paints the part of `rect` that is inside Area().
  void PaintRectangle(const QRect& rect, const Paint& paint);
  /// Paints the marked pixels of `mask`, whose top left corner is at `at`.
  void PaintMask(const PixelMask& mask, QPoint at, const Paint& paint);
  /// Paints text, without a raster operation: the bytes of `coverage`, whose top left corner is at
  /// `at`, are 0 where it covers nothing of a pixel and 255 where it covers all.
  void PaintText(const PixelMask& coverage, QPoint at, QRgb colour);
  /// Paints the inside of the polygons, as ScanPolygons finds it.
  void PaintPolygons(const std::vector<QPolygonF>& polygons, FillRule rule, const Paint& paint);
  /// Sets a pixel within the clip, without a raster operation, for blits, text and SetPixel. It
  /// must be inside Area(), as the pixel of At.
  void WritePixel(QPoint at, QRgb colour);
  QRgb At(QPoint at) const { return image_.Pixels[image_.IndexOf(at.x(), at.y())]; }
  /// Fills from `seed` up to the pixels of `colour`, or only over pixels of `colour`. A seed
  /// outside Area() fills nothing.
  void Flood(QPoint seed, QRgb colour, forms::FloodStops stops, const Paint& paint);

  const Clip& CurrentClip() const { return clip_; }
  void SetClip(Clip clip) { clip_ = std::move(clip); }
  /// The rectangles become the clip.
  void ClipTo(const std::vector<QRect>& rects);
  void IntersectClip(const QRect& rect);
  void ExcludeClip(const QRect& rect);
  /// Moves the clip; nothing may be painted where the moved clip comes from outside.
  void OffsetClip(QPoint by);

 private:
  bool Clipped(int x, int y) const { return clip_ && clip_->Row(y)[x] == 0; }
  /// Clears the bits of pixels outside the clip in a row of 64 pixels a word.
  void ClearClippedBits(int y, std::span<std::uint64_t> row) const;
  void FillClip(const QRect& rect, std::uint8_t value);
  Clip NewClip(std::uint8_t value) const;

  QRgb* Row(int y) { return image_.Pixels.data() + image_.IndexOf(0, y); }

  forms::Raster image_;
  Clip clip_;
  Use use_;
  QRect measuredBounds_;
  Budget& budget_;
};

}  // namespace terramark::metafile
