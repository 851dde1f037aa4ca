#include "metafile/devicecontext.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <span>
#include <utility>

#include "metafile/limits.h"

namespace terramark::metafile {
namespace {

constexpr int HatchSide = 8;

int Rounded(double value) {
  if (std::isnan(value)) return 0;
  return static_cast<int>(std::clamp(std::floor(value + 0.5), -MaxDevice, MaxDevice));
}

/// A row of bits for each row of pixels, the leftmost pixel in the highest bit.
constexpr std::uint8_t Hatches[][HatchSide] = {
    {0x00, 0x00, 0x00, 0xFF, 0x00, 0x00, 0x00, 0x00},  // horizontal
    {0x08, 0x08, 0x08, 0x08, 0x08, 0x08, 0x08, 0x08},  // vertical
    {0x80, 0x40, 0x20, 0x10, 0x08, 0x04, 0x02, 0x01},  // falling diagonal
    {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80},  // rising diagonal
    {0x08, 0x08, 0x08, 0xFF, 0x08, 0x08, 0x08, 0x08},  // cross
    {0x81, 0x42, 0x24, 0x18, 0x18, 0x24, 0x42, 0x81},  // diagonal cross
};

forms::Picture HatchTile(int hatch, QRgb line, QRgb ground) {
  auto tile = std::make_shared<forms::Raster>();
  tile->Width = HatchSide;
  tile->Height = HatchSide;
  for (const std::uint8_t row : Hatches[hatch]) {
    for (int x = 0; x < HatchSide; ++x) {
      const bool on = (row >> (HatchSide - 1 - x) & 1) != 0;
      tile->Pixels.push_back(on ? line : ground);
    }
  }
  return tile;
}

}  // namespace

DeviceContext::DeviceContext(Surface& surface, const LogicalFrame& frame, QSize box,
                             FrameSource source)
    : surface_(surface), source_(source) {
  const QPointF scale(static_cast<double>(box.width()) / frame.Extent.width(),
                      static_cast<double>(box.height()) / frame.Extent.height());
  if (Measured()) {
    baseScale_ = scale;
    baseOffset_ = {-frame.Origin.x() * scale.x(), -frame.Origin.y() * scale.y()};
    return;
  }
  State.WindowOrigin = frame.Origin;
  State.WindowExtent = {static_cast<double>(frame.Extent.width()),
                        static_cast<double>(frame.Extent.height())};
  State.ViewportExtent = {static_cast<double>(box.width()), static_cast<double>(box.height())};
}

void DeviceContext::Save() {
  if (saved_.size() == MaxSaves) return;
  if (!surface_.Cost().Spend(std::ssize(saved_))) return;
  if (SavedClipBytes() >= MaxSavedClipBytes) return surface_.Cost().UseUp();
  State.SavedClip = surface_.CurrentClip();
  saved_.push_back(State);
  State.SavedClip = nullptr;
}

std::int64_t DeviceContext::SavedClipBytes() const {
  const std::int64_t each = std::int64_t{surface_.Area().width()} * surface_.Area().height();
  std::int64_t total = 0;
  const Clip* last = nullptr;
  for (const DeviceState& state : saved_) {
    if (state.SavedClip && (last == nullptr || *last != state.SavedClip)) total += each;
    last = &state.SavedClip;
  }
  return total;
}

void DeviceContext::Restore(int level) {
  const int count = static_cast<int>(saved_.size());
  const int target = level < 0 ? count + level : level - 1;
  if (target < 0 || target >= count) return;
  State = saved_[static_cast<std::size_t>(target)];
  saved_.resize(static_cast<std::size_t>(target));
  surface_.SetClip(std::exchange(State.SavedClip, nullptr));
}

void DeviceContext::Select(const GraphicsObject& object) {
  if (const auto* pen = std::get_if<Pen>(&object)) State.CurrentPen = *pen;
  if (const auto* brush = std::get_if<Brush>(&object)) State.CurrentBrush = *brush;
  if (const auto* font = std::get_if<Font>(&object)) State.CurrentFont = *font;
  if (const auto* region = std::get_if<RegionObject>(&object)) surface_.ClipTo(region->Rects);
}

QPointF DeviceContext::Scale() const {
  const double up = State.UpIsPositive ? -1 : 1;
  return {baseScale_.x() * State.ViewportExtent.x() / State.WindowExtent.x(),
          up * baseScale_.y() * State.ViewportExtent.y() / State.WindowExtent.y()};
}

QPoint DeviceContext::ToDevice(QPointF logical) const {
  const QPointF scale = Scale();
  const QPointF from = logical - State.WindowOrigin;
  return {
      Rounded(from.x() * scale.x() + State.ViewportOrigin.x() * baseScale_.x() + baseOffset_.x()),
      Rounded(from.y() * scale.y() + State.ViewportOrigin.y() * baseScale_.y() + baseOffset_.y())};
}

QRect DeviceContext::ToDevice(int left, int top, int right, int bottom) const {
  const QPoint a = ToDevice(QPointF(left, top));
  const QPoint b = ToDevice(QPointF(right, bottom));
  return {QPoint(std::min(a.x(), b.x()), std::min(a.y(), b.y())),
          QPoint(std::max(a.x(), b.x()) - 1, std::max(a.y(), b.y()) - 1)};
}

QRgb DeviceContext::Resolve(ColourRef colour) const {
  constexpr ColourRef IndexMark = 1;
  const std::span<const QRgb> entries = State.CurrentPalette.Entries();
  if (colour >> 24 == IndexMark) {
    const std::size_t index = colour & 0xFFFF;
    return index < entries.size() ? entries[index] : qRgb(0, 0, 0);
  }
  return qRgb(colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
}

int DeviceContext::PenWidth() const {
  const QPoint start = ToDevice(QPointF(0, 0));
  const int width = std::abs(ToDevice(QPointF(State.CurrentPen.Width, 0)).x() - start.x());
  return std::clamp(width, 1, MaxPenWidth);
}

Paint DeviceContext::PenPaint() const {
  return {.Operation = State.Operation, .Colour = Resolve(State.CurrentPen.Colour), .Pattern = {}};
}

Paint DeviceContext::BrushPaint(const Brush& brush) const {
  Paint paint{.Operation = State.Operation, .Colour = Resolve(brush.Colour), .Pattern = {}};
  if (brush.Style == BrushStyle::Hatched) {
    const QRgb ground = State.Opaque ? Resolve(State.BackColour) : qRgba(0, 0, 0, 0);
    paint.Pattern = HatchTile(brush.Hatch, paint.Colour, ground);
  }
  if (brush.Style == BrushStyle::Pattern) paint.Pattern = brush.Tile;
  return paint;
}

}  // namespace terramark::metafile
