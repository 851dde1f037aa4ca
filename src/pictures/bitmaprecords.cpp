#include <QtEndian>
#include <algorithm>
#include <cstdlib>
#include <optional>

#include "pictures/dib.h"
#include "pictures/newimage.h"
#include "pictures/recordplayers.h"

namespace terramark::pictures {
namespace {

constexpr int StretchAnd = 1;
constexpr int StretchOr = 2;

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
    return Source +
           static_cast<int>((2 * std::int64_t{Index(destination)} + 1) * Count / (2 * Length));
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

// A blit as the records give it: destination in logical units, source in pixels from the top left.
struct Blit {
  int Rop = 0xCC;
  QPoint To;
  QSize Size;
  QRect From;  // may have negative sizes
  QImage Source;
  bool SizeInPixels = false;
};

// Where a bitmap shrinks, the classic default lays the pixels that fall together over each other,
// so that no black line gets lost.
QRgb SampleSource(const QImage& source, const Axis& x, const Axis& y, QPoint at, int mode) {
  const bool shrinks = x.Count > x.Length || y.Count > y.Length;
  if (!shrinks || (mode != StretchAnd && mode != StretchOr)) {
    const QPoint from(x.Nearest(at.x()), y.Nearest(at.y()));
    return source.valid(from) ? source.pixel(from) : 0xFF000000;
  }
  QRgb result = mode == StretchAnd ? 0xFFFFFFFF : 0xFF000000;
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

void Draw(DeviceContext& context, const Blit& blit) {
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

// A packed bitmap's source rows are counted from the first stored one.
void FlipSource(Blit& blit, QByteArrayView dib) {
  if (blit.Source.isNull() || !IsBottomUp(dib)) return;
  blit.From.moveTop(blit.Source.height() - blit.From.top() - blit.From.height());
}

QImage Decode(DeviceContext& context, QByteArrayView dib, bool paletteIndices) {
  if (dib.isEmpty() || !context.Target().Spend(dib.size())) return {};
  QImage image =
      paletteIndices ? DecodeDib(dib, context.State.CurrentPalette) : DecodeDib(dib, std::nullopt);
  return context.Target().Spend(std::int64_t{4} * image.width() * image.height()) ? image
                                                                                  : QImage();
}

// The older bitmap of two colours: clear bits show the text colour, set bits the background.
QImage DecodeOldBitmap(const DeviceContext& context, const MetafileRecord& record, qsizetype at,
                       qsizetype bitsAt) {
  const int width = record.Int(at + 1);
  const int height = record.Int(at + 2);
  const int rowBytes = record.Int(at + 3);
  const QByteArrayView bits = record.From(bitsAt);
  const bool mono = record.Word(at + 4) == 0x0101;
  if (!mono || width < 1 || height < 1 || rowBytes < (width + 7) / 8) return {};
  if (bits.size() < qsizetype{rowBytes} * height) return {};
  const QRgb clear = context.Resolve(context.State.TextColour);
  const QRgb set = context.Resolve(context.State.BackColour);
  QImage image = NewImage({width, height}, QImage::Format_RGB32);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const int byte = static_cast<unsigned char>(bits[qsizetype{y} * rowBytes + x / 8]);
      image.setPixel(x, y, (byte >> (7 - x % 8) & 1) != 0 ? set : clear);
    }
  }
  return image;
}

int RopOf(const MetafileRecord& record) {
  return record.Word(1) & 0xFF;
}

// DIBBitBlt and BitBlt: a record without a bitmap fills with the brush.
void PlayBitBlt(DeviceContext& context, const MetafileRecord& record, bool old) {
  constexpr qsizetype WordsWithout = 9;
  Blit blit{.Rop = RopOf(record), .To = {}, .Size = {}, .From = {}, .Source = {}};
  const bool bare = record.Words() <= WordsWithout;
  const qsizetype at = bare ? 5 : 4;
  blit.To = record.PointYX(at + 2);
  blit.Size = {record.Int(at + 1), record.Int(at)};
  blit.From = QRect(record.PointYX(2), blit.Size);
  if (!bare && old) blit.Source = DecodeOldBitmap(context, record, 8, 13);
  if (!bare && !old) {
    blit.Source = Decode(context, record.From(8), false);
    FlipSource(blit, record.From(8));
  }
  Draw(context, blit);
}

void PlayStretch(DeviceContext& context, const MetafileRecord& record, qsizetype at, bool old,
                 bool paletteIndices) {
  Blit blit{.Rop = RopOf(record),
            .To = record.PointYX(at + 6),
            .Size = {record.Int(at + 5), record.Int(at + 4)},
            .From = QRect(record.PointYX(at + 2), QSize(record.Int(at + 1), record.Int(at))),
            .Source = {}};
  const QByteArrayView dib = record.From(at + 8);
  if (old) {
    blit.Source = DecodeOldBitmap(context, record, at + 8, at + 13);
  } else {
    blit.Source = Decode(context, dib, paletteIndices);
    FlipSource(blit, dib);
  }
  Draw(context, blit);
}

// SetDIBitsToDevice: the size is in pixels of the device, so the bitmap does not stretch.
void PlaySetDib(DeviceContext& context, const MetafileRecord& record) {
  Blit blit{.Rop = 0xCC,
            .To = record.PointYX(7),
            .Size = {record.Int(6), record.Int(5)},
            .From = QRect(record.PointYX(3), QSize(record.Int(6), record.Int(5))),
            .Source = {},
            .SizeInPixels = true};
  blit.Source = Decode(context, record.From(9), record.Word(0) == 1);
  FlipSource(blit, record.From(9));
  Draw(context, blit);
}

void CreatePattern(DeviceContext& context, QImage tile) {
  // A brush may be kept, so its memory weighs more than pixels that are painted.
  context.Target().Spend(std::int64_t{12} * tile.width() * tile.height());
  Brush brush;
  brush.Style = tile.isNull() ? BrushStyle::None : BrushStyle::Pattern;
  brush.Tile = std::move(tile);
  context.Target().Spend(static_cast<std::int64_t>(context.Objects.Add(std::move(brush))));
}

}  // namespace

bool PlayBitmapRecord(DeviceContext& context, const MetafileRecord& record) {
  switch (record.Function) {
    case 0x061D: {  // PatBlt
      Draw(context, {.Rop = RopOf(record),
                     .To = record.PointYX(4),
                     .Size = {record.Int(3), record.Int(2)},
                     .From = QRect(0, 0, record.Int(3), record.Int(2)),
                     .Source = {}});
      return true;
    }
    case 0x0922:
      PlayBitBlt(context, record, true);
      return true;
    case 0x0940:
      PlayBitBlt(context, record, false);
      return true;
    case 0x0B23:
      PlayStretch(context, record, 2, true, false);
      return true;
    case 0x0B41:
      PlayStretch(context, record, 2, false, false);
      return true;
    case 0x0F43:
      PlayStretch(context, record, 3, false, record.Word(2) == 1);
      return true;
    case 0x0D33:
      PlaySetDib(context, record);
      return true;
    case 0x0142:  // DIBCreatePatternBrush
      CreatePattern(context, Decode(context, record.From(2), record.Word(1) == 1));
      return true;
    case 0x01F9:  // CreatePatternBrush: the bitmap's head, then 20 unused words, then its bits
      CreatePattern(context, DecodeOldBitmap(context, record, 0, 25));
      return true;
    default:
      return false;
  }
}

}  // namespace terramark::pictures
