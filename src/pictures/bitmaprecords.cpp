#include <memory>
#include <optional>
#include <utility>

#include "pictures/blit.h"
#include "pictures/dib.h"
#include "pictures/limits.h"
#include "pictures/recordplayers.h"

namespace terramark::pictures {
namespace {

constexpr int TwoColourPlanes = 0x0101;  // one plane of one bit a pixel
constexpr std::int64_t WorkPerBitmapPixel = 1;
constexpr std::int64_t WorkPerKeptPixel = 12;

// How a record carries its bitmap.
enum class BitmapForm { TwoColours, Packed, PackedPaletteIndices };

BitmapForm PackedForm(int colourUse) {
  return colourUse == PaletteColours ? BitmapForm::PackedPaletteIndices : BitmapForm::Packed;
}

// The size of the bitmap in a record; none when it is broken or too large.
std::optional<DibShape> ShapeOf(const MetafileRecord& record, qsizetype at, BitmapForm form) {
  if (form != BitmapForm::TwoColours) return ShapeOfDib(record.From(at));
  const DibShape shape{.Width = record.Int(at + 1), .Height = record.Int(at + 2)};
  const bool mono = record.Word(at + 4) == TwoColourPlanes;
  if (!mono || shape.Width < 1 || shape.Height < 1 || shape.Pixels() > MaxBitmapPixels ||
      record.Int(at + 3) < (shape.Width + 7) / 8) {
    return std::nullopt;
  }
  return shape;
}

// The older bitmap of two colours: clear bits show the text colour, set bits the background.
forms::Picture DecodeTwoColours(const DeviceContext& context, const DibShape& shape,
                                qsizetype rowBytes, QByteArrayView bits) {
  if (bits.size() < rowBytes * shape.Height) return nullptr;
  const QRgb clear = context.Resolve(context.State.TextColour);
  const QRgb set = context.Resolve(context.State.BackColour);
  auto image = std::make_shared<forms::Raster>();
  image->Width = shape.Width;
  image->Height = shape.Height;
  image->Pixels.reserve(image->At(0, shape.Height));
  for (int y = 0; y < shape.Height; ++y) {
    for (int x = 0; x < shape.Width; ++x) {
      const int byte = static_cast<unsigned char>(bits[y * rowBytes + x / 8]);
      image->Pixels.push_back((byte >> (7 - x % 8) & 1) != 0 ? set : clear);
    }
  }
  return image;
}

// The bitmap of that shape at the word `at` of the record, or at `twoColourBitsAt` where its bits
// stand apart; null when it is broken, or when the work that is left does not reach for it.
forms::Picture Decode(DeviceContext& context, const MetafileRecord& record, qsizetype at,
                      BitmapForm form, const DibShape& shape, qsizetype twoColourBitsAt) {
  if (!context.Target().Spend(WorkPerBitmapPixel * shape.Pixels() + record.Words())) {
    return nullptr;
  }
  switch (form) {
    case BitmapForm::TwoColours:
      return DecodeTwoColours(context, shape, record.Int(at + 3), record.From(twoColourBitsAt));
    case BitmapForm::PackedPaletteIndices:
      return DecodeDib(record.From(at), context.State.CurrentPalette);
    case BitmapForm::Packed:
      return DecodeDib(record.From(at), std::nullopt);
  }
  return nullptr;
}

// Draws the bitmap at the word `at` of the record.
void DrawBitmap(DeviceContext& context, Blit blit, const MetafileRecord& record, qsizetype at,
                BitmapForm form) {
  const std::optional<DibShape> shape = ShapeOf(record, at, form);
  if (!shape || !BlitTouches(context, blit)) return;
  blit.Source = Decode(context, record, at, form, *shape, at + 5);
  // A packed bitmap's source rows are counted from the first stored one.
  if (shape->BottomUp) {
    blit.From.moveTop(shape->Height - blit.From.top() - blit.From.height());
  }
  DrawBlit(context, blit);
}

int RopOf(const MetafileRecord& record) {
  return record.Word(1) & 0xFF;
}

// A record without a bitmap fills with the brush.
void PlayBitBlt(DeviceContext& context, const MetafileRecord& record, BitmapForm form) {
  constexpr qsizetype WordsWithout = 9;
  const bool bare = record.Words() <= WordsWithout;
  const qsizetype at = bare ? 5 : 4;
  const QSize size(record.Int(at + 1), record.Int(at));
  const Blit blit{.Rop = RopOf(record),
                  .To = record.PointYX(at + 2),
                  .Size = size,
                  .From = QRect(record.PointYX(2), size),
                  .Source = {}};
  if (bare) {
    DrawBlit(context, blit);
  } else {
    DrawBitmap(context, blit, record, 8, form);
  }
}

void PlayStretch(DeviceContext& context, const MetafileRecord& record, qsizetype at,
                 BitmapForm form) {
  const Blit blit{.Rop = RopOf(record),
                  .To = record.PointYX(at + 6),
                  .Size = {record.Int(at + 5), record.Int(at + 4)},
                  .From = QRect(record.PointYX(at + 2), QSize(record.Int(at + 1), record.Int(at))),
                  .Source = {}};
  DrawBitmap(context, blit, record, at + 8, form);
}

// The size is in pixels of the device, so the bitmap does not stretch.
void PlaySetDib(DeviceContext& context, const MetafileRecord& record) {
  const QSize size(record.Int(6), record.Int(5));
  const Blit blit{.Rop = SourceCopy,
                  .To = record.PointYX(7),
                  .Size = size,
                  .From = QRect(record.PointYX(3), size),
                  .Source = {},
                  .SizeInPixels = true};
  DrawBitmap(context, blit, record, 9, PackedForm(record.Word(0)));
}

// A brush that fails keeps its number all the same: the file counts on it.
void CreatePattern(DeviceContext& context, const MetafileRecord& record, qsizetype at,
                   BitmapForm form, qsizetype twoColourBitsAt) {
  GraphicsObject object = Unusable();
  const std::optional<DibShape> shape = ShapeOf(record, at, form);
  if (auto tile = shape ? Decode(context, record, at, form, *shape, twoColourBitsAt) : nullptr) {
    // It may be kept, so its memory weighs more than pixels that are painted.
    context.Target().Spend(WorkPerKeptPixel * static_cast<std::int64_t>(tile->Pixels.size()));
    object = Brush{.Style = BrushStyle::Pattern, .Tile = std::move(tile)};
  }
  context.Target().Spend(static_cast<std::int64_t>(context.Objects.Add(std::move(object))));
}

}  // namespace

bool PlayBitmapRecord(DeviceContext& context, const MetafileRecord& record) {
  switch (record.Kind) {
    case RecordKind::PatBlt: {
      DrawBlit(context, {.Rop = RopOf(record),
                         .To = record.PointYX(4),
                         .Size = {record.Int(3), record.Int(2)},
                         .From = QRect(0, 0, record.Int(3), record.Int(2)),
                         .Source = {}});
      return true;
    }
    case RecordKind::BitBlt:
      PlayBitBlt(context, record, BitmapForm::TwoColours);
      return true;
    case RecordKind::DibBitBlt:
      PlayBitBlt(context, record, BitmapForm::Packed);
      return true;
    case RecordKind::StretchBlt:
      PlayStretch(context, record, 2, BitmapForm::TwoColours);
      return true;
    case RecordKind::DibStretchBlt:
      PlayStretch(context, record, 2, BitmapForm::Packed);
      return true;
    case RecordKind::StretchDib:
      PlayStretch(context, record, 3, PackedForm(record.Word(2)));
      return true;
    case RecordKind::SetDibToDevice:
      PlaySetDib(context, record);
      return true;
    case RecordKind::DibCreatePatternBrush:
      CreatePattern(context, record, 2, PackedForm(record.Word(1)), 0);
      return true;
    case RecordKind::CreatePatternBrush:  // the bitmap's head, then 20 unused words, then its bits
      CreatePattern(context, record, 0, BitmapForm::TwoColours, 25);
      return true;
    default:
      return false;
  }
}

}  // namespace terramark::pictures
