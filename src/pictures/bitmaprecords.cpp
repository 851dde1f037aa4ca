#include <QImage>
#include <optional>

#include "pictures/blit.h"
#include "pictures/dib.h"
#include "pictures/newimage.h"
#include "pictures/recordplayers.h"

namespace terramark::pictures {
namespace {

// How a record carries its bitmap.
enum class BitmapForm { TwoColours, Packed, PackedPaletteIndices };

BitmapForm PackedForm(int colourUse) {
  return colourUse == PaletteColours ? BitmapForm::PackedPaletteIndices : BitmapForm::Packed;
}

QImage DecodePacked(DeviceContext& context, QByteArrayView dib, BitmapForm form) {
  if (dib.isEmpty() || !context.Target().Spend(dib.size())) return {};
  QImage image = form == BitmapForm::PackedPaletteIndices
                     ? DecodeDib(dib, context.State.CurrentPalette)
                     : DecodeDib(dib, std::nullopt);
  return context.Target().Spend(std::int64_t{4} * image.width() * image.height()) ? image
                                                                                  : QImage();
}

// The older bitmap of two colours: clear bits show the text colour, set bits the background.
QImage DecodeTwoColours(const DeviceContext& context, const MetafileRecord& record, qsizetype at,
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

// Draws the bitmap at the word `at` of the record.
void DrawBitmap(DeviceContext& context, Blit blit, const MetafileRecord& record, qsizetype at,
                BitmapForm form) {
  if (form == BitmapForm::TwoColours) {
    blit.Source = DecodeTwoColours(context, record, at, at + 5);
  } else {
    const QByteArrayView dib = record.From(at);
    blit.Source = DecodePacked(context, dib, form);
    // A packed bitmap's source rows are counted from the first stored one.
    if (!blit.Source.isNull() && IsBottomUp(dib)) {
      blit.From.moveTop(blit.Source.height() - blit.From.top() - blit.From.height());
    }
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
      CreatePattern(context, DecodePacked(context, record.From(2), PackedForm(record.Word(1))));
      return true;
    case RecordKind::CreatePatternBrush:  // the bitmap's head, then 20 unused words, then its bits
      CreatePattern(context, DecodeTwoColours(context, record, 0, 25));
      return true;
    default:
      return false;
  }
}

}  // namespace terramark::pictures
