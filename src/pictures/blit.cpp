#include "pictures/blit.h"

#include <algorithm>
#include <cstdlib>

namespace terramark::pictures {
namespace {

constexpr QRgb OpaqueBlack = 0xFF000000;

// One axis of a blit: which source pixels a destination pixel stands for.
struct Axis {
  int From = 0;    // first destination pixel
  int Length = 0;  // destination pixels
  int Source = 0;  // first source pixel
  int Count = 0;   // source pixels
  bool Mirrored = false;

  int Index(int destination) const {
    return Mirrored ? From + Length - 1 - destination : destination - From;
  }
  int Nearest(int destination) const {
    return Source + static_cast<int>((2 * std::int64_t{Index(destination)} + 1) * Count /
                                     (2 * std::int64_t{Length}));
  }
  int First(int destination) const {
    return Source + static_cast<int>(std::int64_t{Index(destination)} * Count / Length);
  }
  int Last(int destination) const {
    const auto end = (std::int64_t{Index(destination)} + 1) * Count / Length;
    return std::max(First(destination), Source + static_cast<int>(end) - 1);
  }
};

Axis MakeAxis(int from, int to, int source, int count) {
  Axis axis{.From = std::min(from, to),
            .Length = std::abs(to - from),
            .Source = source,
            .Count = std::abs(count),
            .Mirrored = (to < from) != (count < 0)};
  if (count < 0) axis.Source += count;
  return axis;
}

// Where a bitmap shrinks, the classic default lays the pixels that fall together over each other,
// so that no black line gets lost.
QRgb SampleSource(const QImage& source, const Axis& x, const Axis& y, QPoint at, int mode) {
  const bool shrinks = x.Count > x.Length || y.Count > y.Length;
  if (!shrinks || (mode != StretchAnd && mode != StretchOr)) {
    const QPoint from(x.Nearest(at.x()), y.Nearest(at.y()));
    return source.valid(from) ? source.pixel(from) : OpaqueBlack;
  }
  QRgb result = mode == StretchAnd ? 0xFFFFFFFF : OpaqueBlack;
  const int bottom = std::min(y.Last(at.y()), source.height() - 1);
  const int right = std::min(x.Last(at.x()), source.width() - 1);
  for (int row = std::max(0, y.First(at.y())); row <= bottom; ++row) {
    for (int column = std::max(0, x.First(at.x())); column <= right; ++column) {
      const QRgb pixel = source.pixel(column, row);
      result = mode == StretchAnd ? result & pixel : result | pixel;
    }
  }
  return result;
}

bool UsesPattern(int rop) {
  return (rop >> 4 & 0xF) != (rop & 0xF);
}
bool UsesSource(int rop) {
  return (rop >> 2 & 0x33) != (rop & 0x33);
}

// Bit (pattern * 4 + source * 2 + destination) of the operation is the result.
QRgb CombineTernary(int rop, QRgb pattern, QRgb source, QRgb destination) {
  QRgb result = 0;
  for (int term = 0; term < 8; ++term) {
    if ((rop >> term & 1) == 0) continue;
    result |= (term & 4 ? pattern : ~pattern) & (term & 2 ? source : ~source) &
              (term & 1 ? destination : ~destination);
  }
  return result | OpaqueBlack;
}

}  // namespace

void DrawBlit(DeviceContext& context, const Blit& blit) {
  Surface& target = context.Target();
  const bool usesSource = UsesSource(blit.Rop);
  if (usesSource && blit.Source.isNull()) return;
  if (UsesPattern(blit.Rop) && !context.HasBrush()) return;
  const QPoint start = context.ToDevice(QPointF(blit.To));
  const QPoint size(blit.Size.width(), blit.Size.height());
  const QPoint end = blit.SizeInPixels ? start + size : context.ToDevice(QPointF(blit.To + size));
  const Axis x = MakeAxis(start.x(), end.x(), blit.From.left(), blit.From.width());
  const Axis y = MakeAxis(start.y(), end.y(), blit.From.top(), blit.From.height());
  const QRect box(x.From, y.From, x.Length, y.Length);
  if (box.isEmpty() || !target.Touch(box)) return;
  const QRect visible = box.intersected(target.Area());
  const std::int64_t sourceWork = std::int64_t{blit.Source.width()} * blit.Source.height();
  if (!target.Spend(2 * std::int64_t{visible.width()} * visible.height() + sourceWork)) return;

  const Paint paint = context.BrushPaint(context.State.CurrentBrush);
  for (int row = visible.top(); row <= visible.bottom(); ++row) {
    for (int column = visible.left(); column <= visible.right(); ++column) {
      const QPoint at(column, row);
      const QRgb source =
          usesSource ? SampleSource(blit.Source, x, y, at, context.State.StretchMode) : 0;
      QRgb pattern = paint.Colour;
      if (!paint.Pattern.isNull()) {
        pattern = paint.Pattern.pixel(column % paint.Pattern.width(), row % paint.Pattern.height());
        if (qAlpha(pattern) == 0) pattern = context.Resolve(context.State.BackColour);
      }
      target.Put(at, CombineTernary(blit.Rop, pattern, source, target.At(at)));
    }
  }
}

}  // namespace terramark::pictures
