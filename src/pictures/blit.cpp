#include "pictures/blit.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <vector>

namespace terramark::pictures {
namespace {

constexpr QRgb OpaqueBlack = 0xFF000000;
constexpr std::int64_t WorkPerBlit = 200;
constexpr std::int64_t WorkPerBlitPixel = 8;

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

struct Axes {
  Axis Across;
  Axis Down;

  QRect Box() const { return {Across.From, Down.From, Across.Length, Down.Length}; }
  bool Shrink() const { return Across.Count > Across.Length || Down.Count > Down.Length; }
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

Axes AxesOf(const DeviceContext& context, const Blit& blit) {
  const QPoint start = context.ToDevice(QPointF(blit.To));
  const QPoint size(blit.Size.width(), blit.Size.height());
  const QPoint end = blit.SizeInPixels ? start + size : context.ToDevice(QPointF(blit.To + size));
  return {MakeAxis(start.x(), end.x(), blit.From.left(), blit.From.width()),
          MakeAxis(start.y(), end.y(), blit.From.top(), blit.From.height())};
}

// The source pixels First <= pixel < End that one destination pixel stands for; none where the blit
// reaches beyond the bitmap.
struct Stretch {
  int First;
  int End;
};

std::vector<Stretch> StretchesOf(const Axis& axis, int from, int to, int sourceSide, bool joins) {
  std::vector<Stretch> stretches;
  for (int at = from; at <= to; ++at) {
    const int first = joins ? axis.First(at) : axis.Nearest(at);
    const int last = joins ? axis.Last(at) : first;
    stretches.push_back({std::max(0, first), std::min(last + 1, sourceSide)});
  }
  return stretches;
}

std::int64_t PixelsIn(const std::vector<Stretch>& stretches) {
  std::int64_t total = 0;
  for (const Stretch& stretch : stretches) total += std::max(1, stretch.End - stretch.First);
  return total;
}

QRgb Joined(const forms::Raster& source, const Stretch& across, const Stretch& down, int mode) {
  QRgb result = source.Pixels[source.At(across.First, down.First)];
  for (int y = down.First; y < down.End; ++y) {
    const QRgb* row = source.Pixels.data() + source.At(0, y);
    for (int x = across.First; x < across.End; ++x) {
      result = mode == StretchOr ? result | row[x] : result & row[x];
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
  const QRgb pixel = tile.Pixels[tile.At(at.x() % tile.Width, at.y() % tile.Height)];
  return qAlpha(pixel) == 0 ? context.Resolve(context.State.BackColour) : pixel;
}

// What the blit reads for a destination pixel: one pixel of the bitmap, or several where it
// shrinks.
class Sampler {
 public:
  Sampler(const forms::Raster& source, const Axes& axes, const QRect& visible, int mode)
      : source_(source), visible_(visible), mode_(mode) {
    // The classic default lays pixels that fall together over each other, so that no black line
    // gets lost.
    const bool joins = axes.Shrink() && (mode == StretchAnd || mode == StretchOr);
    across_ = StretchesOf(axes.Across, visible.left(), visible.right(), source.Width, joins);
    down_ = StretchesOf(axes.Down, visible.top(), visible.bottom(), source.Height, joins);
  }

  /// How many pixels will be read in all.
  std::int64_t Work() const { return PixelsIn(across_) * PixelsIn(down_); }

  /// Nothing beyond the bitmap.
  std::optional<QRgb> At(QPoint at) const {
    const Stretch& across = across_[static_cast<std::size_t>(at.x() - visible_.left())];
    const Stretch& down = down_[static_cast<std::size_t>(at.y() - visible_.top())];
    if (across.First >= across.End || down.First >= down.End) return std::nullopt;
    return Joined(source_, across, down, mode_);
  }

 private:
  const forms::Raster& source_;
  QRect visible_;
  int mode_;
  std::vector<Stretch> across_;
  std::vector<Stretch> down_;
};

}  // namespace

bool BlitTouches(DeviceContext& context, const Blit& blit) {
  const QRect box = AxesOf(context, blit).Box();
  return !box.isEmpty() && context.Target().Touch(box);
}

void DrawBlit(DeviceContext& context, const Blit& blit) {
  Surface& target = context.Target();
  if (UsesPattern(blit.Rop) && !context.HasBrush()) return;
  if (UsesSource(blit.Rop) && !blit.Source) return;
  if (!BlitTouches(context, blit) || !target.Spend(WorkPerBlit)) return;
  const Axes axes = AxesOf(context, blit);
  const QRect visible = axes.Box().intersected(target.Area());
  if (!target.Spend(WorkPerBlitPixel * visible.width() * visible.height())) return;
  std::optional<Sampler> sampler;
  if (UsesSource(blit.Rop)) {
    sampler.emplace(*blit.Source, axes, visible, context.State.StretchMode);
    if (!target.Spend(sampler->Work())) return;
  }

  const Paint paint = context.BrushPaint(context.State.CurrentBrush);
  for (int y = visible.top(); y <= visible.bottom(); ++y) {
    for (int x = visible.left(); x <= visible.right(); ++x) {
      const QPoint at(x, y);
      const std::optional<QRgb> source = sampler ? sampler->At(at) : QRgb{0};
      if (!source) continue;
      const QRgb pattern = PatternAt(context, paint, at);
      target.Put(at, CombineTernary(blit.Rop, pattern, *source, target.At(at)));
    }
  }
}

}  // namespace terramark::pictures
