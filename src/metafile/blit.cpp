#include "metafile/blit.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace terramark::metafile {
namespace {

constexpr QRgb OpaqueBlack = 0xFF000000;

/// One axis of a blit, in pixels.
struct Axis {
  int From = 0;
  int Length = 0;
  int Source = 0;  // the bitmap's first pixel, as the next
  int SourceLength = 0;
  bool Mirrored = false;

  bool Shrinks() const { return SourceLength > Length; }
};

struct Axes {
  Axis Across;
  Axis Down;

  QRect Box() const { return {Across.From, Down.From, Across.Length, Down.Length}; }
};

Axis MakeAxis(int from, int to, int source, int sourceLength) {
  return {.From = std::min(from, to),
          .Length = std::abs(to - from),
          .Source = std::min(source, source + sourceLength),
          .SourceLength = std::abs(sourceLength),
          .Mirrored = (to < from) != (sourceLength < 0)};
}

Axes AxesOf(const DeviceContext& context, const Blit& blit) {
  const QPoint start = context.ToDevice(QPointF(blit.To));
  const QPoint size(blit.Size.width(), blit.Size.height());
  const QPoint end = blit.SizeUnit == Blit::Unit::Pixels
                         ? start + size
                         : context.ToDevice(QPointF(blit.To + size));
  return {MakeAxis(start.x(), end.x(), blit.From.left(), blit.From.width()),
          MakeAxis(start.y(), end.y(), blit.From.top(), blit.From.height())};
}

/// How several pixels of the bitmap become one: one of them is taken, or all are combined.
enum class Shrinking { Nearest, Combined };

/// The bitmap's pixels First <= pixel < End for one pixel of the target; none beyond the bitmap.
struct SourceRange {
  int First = 0;
  int End = 0;
};

/// The pixel of the bitmap that covers the middle of the target's pixel `index`.
std::int64_t NearestTo(const Axis& axis, std::int64_t index) {
  return (2 * index + 1) * axis.SourceLength / (std::int64_t{2} * axis.Length);
}

/// The first pixel of the bitmap whose middle is in the target's pixel `index` or beyond.
std::int64_t FirstIn(const Axis& axis, std::int64_t index) {
  return (2 * index * axis.SourceLength + axis.Length - 1) / (std::int64_t{2} * axis.Length);
}

/// The ranges for the target's pixels `from` to `to`.
std::vector<SourceRange> RangesOf(const Axis& axis, int from, int to, int bitmapSide,
                                  Shrinking shrinking) {
  const bool combined = shrinking == Shrinking::Combined && axis.Shrinks();
  std::vector<SourceRange> ranges;
  for (int at = from; at <= to; ++at) {
    const int index = axis.Mirrored ? axis.From + axis.Length - 1 - at : at - axis.From;
    const std::int64_t first = combined ? FirstIn(axis, index) : NearestTo(axis, index);
    const std::int64_t end = combined ? FirstIn(axis, index + 1) : first + 1;
    ranges.push_back({std::max(0, axis.Source + static_cast<int>(first)),
                      std::min(axis.Source + static_cast<int>(end), bitmapSide)});
  }
  return ranges;
}

std::int64_t PixelsIn(const std::vector<SourceRange>& ranges) {
  std::int64_t total = 0;
  for (const SourceRange& range : ranges) total += std::max(1, range.End - range.First);
  return total;
}

/// Combines rows of the bitmap to one, with a pixel for each range of columns; that of an empty
/// range means nothing. False when the budget is used up.
bool CombineRows(const forms::Raster& source, const std::vector<SourceRange>& columns,
                 const SourceRange& rows, int mode, Budget& budget, std::vector<QRgb>& combined) {
  const bool joins = mode == StretchOr;
  combined.assign(columns.size(), joins ? 0 : ~QRgb{0});
  for (int y = rows.First; y < rows.End; ++y) {
    if (!budget.Spend(PixelsIn(columns))) return false;
    const QRgb* row = source.Pixels.data() + source.IndexOf(0, y);
    for (std::size_t i = 0; i < columns.size(); ++i) {
      for (int x = columns[i].First; x < columns[i].End; ++x) {
        combined[i] = joins ? combined[i] | row[x] : combined[i] & row[x];
      }
    }
  }
  return true;
}

bool UsesPattern(int rop) {
  return (rop >> 4 & 0xF) != (rop & 0xF);
}
bool UsesSource(int rop) {
  return (rop >> 2 & 0x33) != (rop & 0x33);
}

/// The result is bit (pattern * 4 + source * 2 + destination) of the operation.
QRgb CombineTernary(int rop, QRgb pattern, QRgb source, QRgb destination) {
  if (rop == SourceCopy) return source;
  QRgb result = 0;
  for (int term = 0; term < 8; ++term) {
    if ((rop >> term & 1) == 0) continue;
    result |= (term & 4 ? pattern : ~pattern) & (term & 2 ? source : ~source) &
              (term & 1 ? destination : ~destination);
  }
  return result | OpaqueBlack;
}

QRgb PatternAt(const DeviceContext& context, const Paint& paint, QPoint at) {
  if (!paint.Pattern) return paint.Colour;
  const forms::Raster& tile = *paint.Pattern;
  const QRgb pixel = tile.Pixels[tile.IndexOf(at.x() % tile.Width, at.y() % tile.Height)];
  return qAlpha(pixel) == 0 ? context.Resolve(context.State.BackColour) : pixel;
}

bool CanPaint(const DeviceContext& context, int rop, const forms::Picture& source) {
  return (!UsesPattern(rop) || context.HasBrush()) && (!UsesSource(rop) || source);
}

void PaintWithout(DeviceContext& context, int rop, const QRect& visible) {
  Surface& target = context.Target();
  const Paint paint = context.BrushPaint(context.State.CurrentBrush);
  for (int y = visible.top(); y <= visible.bottom(); ++y) {
    if (!target.Cost().Spend(visible.width())) return;
    for (int x = visible.left(); x <= visible.right(); ++x) {
      const QRgb pattern = PatternAt(context, paint, {x, y});
      target.WritePixel({x, y}, CombineTernary(rop, pattern, 0, target.At({x, y})));
    }
  }
}

void PaintWith(DeviceContext& context, int rop, const Axes& axes, const QRect& visible,
               const forms::Raster& source) {
  Surface& target = context.Target();
  const int mode = context.State.StretchMode;
  // The default mode combines the pixels that become one, so that no thin black line is lost.
  const bool combines = mode == StretchAnd || mode == StretchOr;
  const Shrinking shrinking = combines ? Shrinking::Combined : Shrinking::Nearest;
  const auto columns =
      RangesOf(axes.Across, visible.left(), visible.right(), source.Width, shrinking);
  const auto rows = RangesOf(axes.Down, visible.top(), visible.bottom(), source.Height, shrinking);
  const Paint paint = context.BrushPaint(context.State.CurrentBrush);
  std::vector<QRgb> combined;
  QPoint at = visible.topLeft();
  for (const SourceRange& down : rows) {
    if (!CombineRows(source, columns, down, mode, target.Cost(), combined)) return;
    at.setX(visible.left());
    for (std::size_t i = 0; i < columns.size(); ++i) {
      if (columns[i].First < columns[i].End && down.First < down.End) {
        const QRgb pattern = PatternAt(context, paint, at);
        target.WritePixel(at, CombineTernary(rop, pattern, combined[i], target.At(at)));
      }
      ++at.rx();
    }
    ++at.ry();
  }
}

void PaintBlit(DeviceContext& context, int rop, const Axes& axes, const forms::Picture& source) {
  const QRect visible = axes.Box().intersected(context.Target().Area());
  if (UsesSource(rop)) return PaintWith(context, rop, axes, visible, *source);
  PaintWithout(context, rop, visible);
}

bool BeginBlit(DeviceContext& context, const Axes& axes) {
  return !axes.Box().isEmpty() && context.Target().BeginShape(axes.Box());
}

}  // namespace

void DrawBlit(DeviceContext& context, const Blit& blit) {
  if (!CanPaint(context, blit.Rop, nullptr)) return;
  const Axes axes = AxesOf(context, blit);
  if (BeginBlit(context, axes)) PaintBlit(context, blit.Rop, axes, nullptr);
}

void DrawBlit(DeviceContext& context, const Blit& blit,
              const std::function<forms::Picture()>& decode) {
  const Axes axes = AxesOf(context, blit);
  if (!BeginBlit(context, axes)) return;
  const forms::Picture source = decode();
  if (CanPaint(context, blit.Rop, source)) PaintBlit(context, blit.Rop, axes, source);
}

}  // namespace terramark::metafile
