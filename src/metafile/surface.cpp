#include "metafile/surface.h"

#include <algorithm>
#include <cstdint>

#include "forms/flood.h"
#include "metafile/textblend.h"

namespace terramark::metafile {
namespace {

constexpr QRgb OpaqueBlack = 0xFF000000;
constexpr QRgb White = 0xFFFFFFFF;
/// Places where edges of polygons cross rows. Each takes eight bytes and has to be sorted, so
/// polygons with more of them are painted in bands of rows.
constexpr std::int64_t CrossingsPerBand = 500'000;
/// A band with more is too much for the budget.
constexpr std::int64_t MaxCrossingsPerBand = 4 * CrossingsPerBand;
/// Pixels in a step of clearing the two bits that a flood has for each.
constexpr std::int64_t PixelsPerClearedWord = 32;

/// The result is bit (pattern * 2 + destination) of the operation's number minus 1.
QRgb CombineBinary(int operation, QRgb pattern, QRgb destination) {
  const int code = operation - 1;
  QRgb result = 0;
  if (code & 1) result |= ~pattern & ~destination;
  if (code & 2) result |= ~pattern & destination;
  if (code & 4) result |= pattern & ~destination;
  if (code & 8) result |= pattern & destination;
  return result | OpaqueBlack;
}

std::int64_t PixelCount(const QRect& rect) {
  return std::int64_t{rect.width()} * rect.height();
}

}  // namespace

Surface::Surface(QSize size, Use use, Budget& budget) : use_(use), budget_(budget) {
  image_.Width = use == Use::Measure ? 1 : size.width();
  image_.Height = use == Use::Measure ? 1 : size.height();
  image_.Pixels.assign(image_.IndexOf(0, image_.Height), White);
}

bool Surface::BeginShape(const QRect& bounds) {
  if (use_ == Use::Measure) {
    measuredBounds_ = measuredBounds_.united(bounds);
    return false;
  }
  const QRect visible = bounds.intersected(Area());
  if (visible.isEmpty()) return false;
  return budget_.Spend(1);
}

void Surface::PaintSpan(int y, int x0, int x1, const Paint& paint) {
  if (!budget_.Spend(x1 - x0)) return;
  QRgb* row = Row(y);
  if (paint.Operation == CopyOperation && !paint.Pattern && !clip_) {
    std::fill(row + x0, row + x1, paint.Colour);
    return;
  }
  const forms::Raster* pattern = paint.Pattern.get();
  const QRgb* tile = nullptr;
  if (pattern != nullptr) tile = pattern->Pixels.data() + pattern->IndexOf(0, y % pattern->Height);
  const std::uint8_t* open = clip_ ? clip_->Row(y) : nullptr;
  for (int x = x0; x < x1; ++x) {
    if (open != nullptr && open[x] == 0) continue;
    const QRgb colour = tile == nullptr ? paint.Colour : tile[x % pattern->Width];
    if (qAlpha(colour) == 0) continue;
    row[x] =
        paint.Operation == CopyOperation ? colour : CombineBinary(paint.Operation, colour, row[x]);
  }
}

void Surface::PaintPixel(QPoint at, const Paint& paint) {
  PaintSpan(at.y(), at.x(), at.x() + 1, paint);
}

void Surface::PaintRectangle(const QRect& rect, const Paint& paint) {
  if (!BeginShape(rect)) return;
  const QRect visible = rect.intersected(Area());
  for (int y = visible.top(); y <= visible.bottom(); ++y) {
    PaintSpan(y, visible.left(), visible.right() + 1, paint);
  }
}

void Surface::PaintMask(const PixelMask& mask, QPoint at, const Paint& paint) {
  const QRect visible = QRect(at, mask.Size()).intersected(Area());
  if (!budget_.Spend(PixelCount(visible))) return;
  for (int y = visible.top(); y <= visible.bottom(); ++y) {
    const std::uint8_t* row = mask.Row(y - at.y());
    int from = visible.left();
    for (int x = from; x <= visible.right(); ++x) {
      if (row[x - at.x()] != 0) continue;
      if (from < x) PaintSpan(y, from, x, paint);
      from = x + 1;
    }
    if (from <= visible.right()) PaintSpan(y, from, visible.right() + 1, paint);
  }
}

void Surface::PaintText(const PixelMask& coverage, QPoint at, QRgb colour) {
  const QRect visible = QRect(at, coverage.Size()).intersected(Area());
  if (!budget_.Spend(PixelCount(visible))) return;
  for (int y = visible.top(); y <= visible.bottom(); ++y) {
    const std::uint8_t* row = coverage.Row(y - at.y());
    for (int x = visible.left(); x <= visible.right(); ++x) {
      const std::uint8_t covered = row[x - at.x()];
      if (covered != 0) WritePixel({x, y}, BlendText(colour, At({x, y}), covered));
    }
  }
}

void Surface::PaintPolygons(const std::vector<QPolygonF>& polygons, FillRule rule,
                            const Paint& paint) {
  QRectF bounds;
  for (const QPolygonF& polygon : polygons) {
    if (!budget_.Spend(polygon.size())) return;
    bounds = bounds.united(polygon.boundingRect());
  }
  if (!BeginShape(bounds.toAlignedRect())) return;
  const QRect area = bounds.toAlignedRect().intersected(Area());
  const std::int64_t bands = 1 + PolygonCrossings(polygons, area) / CrossingsPerBand;
  const int rows = 1 + static_cast<int>(area.height() / bands);
  for (QRect band(area.topLeft(), QSize(area.width(), rows)); band.top() <= area.bottom();
       band.translate(0, rows)) {
    const QRect visible = band.intersected(area);
    const std::int64_t crossings = PolygonCrossings(polygons, visible);
    if (crossings > MaxCrossingsPerBand) return budget_.UseUp();
    if (!budget_.Spend(crossings)) return;
    ScanPolygons(polygons, rule, visible,
                 [&](int y, int x0, int x1) { PaintSpan(y, x0, x1, paint); });
  }
}

void Surface::WritePixel(QPoint at, QRgb colour) {
  if (Clipped(at.x(), at.y())) return;
  Row(at.y())[at.x()] = colour;
}

void Surface::Flood(QPoint seed, QRgb colour, forms::FloodStops stops, const Paint& paint) {
  if (!Area().contains(seed) || !budget_.Spend(PixelCount(Area()) / PixelsPerClearedWord)) return;
  const auto width = static_cast<std::size_t>(Area().width());
  // When the budget is used up, all further rows are closed, which ends the flood.
  const auto open = [&](int y, std::span<std::uint64_t> row) {
    if (!budget_.Spend(Area().width())) return;
    forms::SetOpenBits({Row(y), width}, colour, stops, row);
    if (clip_) ClearClippedBits(y, row);
  };
  const forms::PixelPoint from{seed.x(), seed.y()};
  const forms::PixelBits reached =
      forms::Flooder(Area().width(), Area().height(), open).From({&from, 1});
  for (int y = 0; y < Area().height(); ++y) {
    reached.ForEachRun(y, 0, Area().width(), [&](int x0, int x1) { PaintSpan(y, x0, x1, paint); });
  }
}

void Surface::ClearClippedBits(int y, std::span<std::uint64_t> row) const {
  const std::uint8_t* clip = clip_->Row(y);
  for (std::size_t x = 0; x < static_cast<std::size_t>(Area().width()); ++x) {
    if (clip[x] == 0) row[x / 64] &= ~(std::uint64_t{1} << x % 64);
  }
}

Clip Surface::NewClip(std::uint8_t value) const {
  return std::make_shared<PixelMask>(Area().size(), value);
}

void Surface::FillClip(const QRect& rect, std::uint8_t value) {
  const QRect visible = rect.intersected(Area());
  if (visible.isEmpty()) return;
  if (clip_.use_count() > 1) clip_ = std::make_shared<PixelMask>(*clip_);
  for (int y = visible.top(); y <= visible.bottom(); ++y) {
    std::fill_n(clip_->Row(y) + visible.left(), visible.width(), value);
  }
}

void Surface::ClipTo(const std::vector<QRect>& rects) {
  if (!budget_.Spend(PixelCount(Area()))) return;
  clip_ = NewClip(0);
  for (const QRect& rect : rects) {
    const QRect visible = rect.intersected(Area());
    if (!budget_.Spend(1 + PixelCount(visible))) return;
    FillClip(visible, 1);
  }
}

void Surface::IntersectClip(const QRect& rect) {
  const int right = rect.right() + 1;
  const int bottom = rect.bottom() + 1;
  const int width = Area().width();
  const int height = Area().height();
  ExcludeClip(QRect(QPoint(0, 0), QPoint(width, rect.top() - 1)));
  ExcludeClip(QRect(QPoint(0, bottom), QPoint(width, height)));
  ExcludeClip(QRect(QPoint(0, rect.top()), QPoint(rect.left() - 1, rect.bottom())));
  ExcludeClip(QRect(QPoint(right, rect.top()), QPoint(width, rect.bottom())));
}

void Surface::ExcludeClip(const QRect& rect) {
  const QRect visible = rect.intersected(Area());
  if (visible.isEmpty()) return;
  const bool copies = clip_.use_count() != 1;
  if (!budget_.Spend(PixelCount(copies ? Area() : visible))) return;
  if (!clip_) clip_ = NewClip(1);
  FillClip(visible, 0);
}

void Surface::OffsetClip(QPoint by) {
  if (!clip_) return;
  if (!budget_.Spend(PixelCount(Area()))) return;
  const Clip old = clip_;
  clip_ = NewClip(0);
  for (int y = 0; y < Area().height(); ++y) {
    for (int x = 0; x < Area().width(); ++x) {
      const QPoint from = QPoint(x, y) - by;
      if (Area().contains(from)) clip_->Row(y)[x] = old->Row(from.y())[from.x()];
    }
  }
}

}  // namespace terramark::metafile
