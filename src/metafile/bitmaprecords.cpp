#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "bitmap/dib.h"
#include "bitmap/limits.h"
#include "metafile/blit.h"
#include "metafile/recordplayers.h"

namespace terramark::metafile {
namespace {

constexpr qsizetype TwoColourHeadWords = 5;
constexpr int TwoColourPlanes = 0x0101;  // one plane of one bit a pixel
constexpr std::int64_t WorkPerBitmapPixel = 1;
constexpr std::int64_t WorkPerKeptPixel = 12;

/// The bitmap in a record. Its size is in pixels, 1 or more each way.
struct RecordBitmap {
  int Width = 0;
  int Height = 0;
  bool BottomUp = false;
  std::int64_t Words = 0;  // of the record
  /// Null when it is broken.
  std::function<forms::Picture(const DeviceContext& context)> Decode;

  std::int64_t Pixels() const { return std::int64_t{Width} * Height; }
};

/// The older bitmap of two colours: clear bits show the text colour, set bits the background.
forms::Picture DecodeTwoColours(const DeviceContext& context, QSize size, qsizetype rowBytes,
                                QByteArrayView bits) {
  if (bits.size() < rowBytes * size.height()) return nullptr;
  const QRgb clear = context.Resolve(context.State.TextColour);
  const QRgb set = context.Resolve(context.State.BackColour);
  auto image = std::make_shared<forms::Raster>();
  image->Width = size.width();
  image->Height = size.height();
  image->Pixels.reserve(image->IndexOf(0, size.height()));
  for (int y = 0; y < size.height(); ++y) {
    for (int x = 0; x < size.width(); ++x) {
      const int byte = static_cast<unsigned char>(bits[y * rowBytes + x / 8]);
      image->Pixels.push_back((byte >> (7 - x % 8) & 1) != 0 ? set : clear);
    }
  }
  return image;
}

/// The older kind, whose head is at the word `at` of the record and whose bits begin at `bitsAt`.
/// None when it is broken or too large.
std::optional<RecordBitmap> TwoColourBitmap(const MetafileRecord& record, qsizetype at,
                                            qsizetype bitsAt) {
  const QSize size(record.Int(at + 1), record.Int(at + 2));
  const int rowBytes = record.Int(at + 3);
  if (record.Word(at + 4) != TwoColourPlanes || size.isEmpty() ||
      std::int64_t{size.width()} * size.height() > bitmap::MaxBitmapPixels ||
      rowBytes < (size.width() + 7) / 8) {
    return std::nullopt;
  }
  return RecordBitmap{.Width = size.width(),
                      .Height = size.height(),
                      .Words = record.Words(),
                      .Decode = [=, bits = record.From(bitsAt)](const DeviceContext& context) {
                        return DecodeTwoColours(context, size, rowBytes, bits);
                      }};
}

/// Of a bitmap with a header: what its colour table holds.
enum class TableOf { Colours, PaletteEntries };

TableOf TableIn(int colourUse) {
  return colourUse == PaletteColours ? TableOf::PaletteEntries : TableOf::Colours;
}

/// Packed at the word `at` of the record, header, colour table and rows. None when it is broken or
/// too large.
std::optional<RecordBitmap> PackedBitmap(const MetafileRecord& record, qsizetype at,
                                         TableOf table) {
  const QByteArrayView bytes = record.From(at);
  bitmap::MemoryBytes source(bytes);
  const std::optional<bitmap::DibHeader> header = bitmap::ReadDibHeader(source);
  if (!header) return std::nullopt;
  return RecordBitmap{.Width = header->Width,
                      .Height = header->Height,
                      .BottomUp = header->BottomUp,
                      .Words = record.Words(),
                      .Decode = [=, header = *header](const DeviceContext& context) {
                        bitmap::MemoryBytes dib(bytes);
                        return table == TableOf::Colours
                                   ? bitmap::DecodeDib(dib, header, std::nullopt)
                                   : bitmap::DecodeDibByPalette(
                                         dib, header, context.State.CurrentPalette.Entries);
                      }};
}

/// Null when it is broken, or when the work that is left does not reach for it.
forms::Picture Decode(DeviceContext& context, const RecordBitmap& from) {
  if (!context.Target().ChargeWork(WorkPerBitmapPixel * from.Pixels() + from.Words)) return nullptr;
  return from.Decode(context);
}

/// Draws nothing without a bitmap.
void DrawBitmap(DeviceContext& context, Blit blit, const std::optional<RecordBitmap>& from) {
  if (!from) return;
  // The rows of such a bitmap are counted from the first stored one.
  if (from->BottomUp) blit.From.moveTop(from->Height - blit.From.top() - blit.From.height());
  DrawBlit(context, blit, [&] { return Decode(context, *from); });
}

int RopOf(const MetafileRecord& record) {
  return record.Word(1) & 0xFF;
}

/// A record without a bitmap is no longer than this, and fills with the brush.
bool HasBitmap(const MetafileRecord& record) {
  constexpr qsizetype WordsWithout = 9;
  return record.Words() > WordsWithout;
}

constexpr qsizetype BitmapAtInBitBlt = 8;

/// Of BitBlt and DibBitBlt: the target is behind a word that is not used where no bitmap follows.
Blit ReadBitBlt(const MetafileRecord& record) {
  const qsizetype at = HasBitmap(record) ? 4 : 5;
  const QSize size(record.Int(at + 1), record.Int(at));
  return {.Rop = RopOf(record),
          .To = record.PointYX(at + 2),
          .Size = size,
          .From = QRect(record.PointYX(2), size)};
}

/// Of the stretching records, source and target of which stand from the word `at`.
Blit ReadStretch(const MetafileRecord& record, qsizetype at) {
  return {.Rop = RopOf(record),
          .To = record.PointYX(at + 6),
          .Size = {record.Int(at + 5), record.Int(at + 4)},
          .From = QRect(record.PointYX(at + 2), QSize(record.Int(at + 1), record.Int(at)))};
}

/// A brush that fails keeps its number all the same: the file counts on it.
void AddPatternBrush(DeviceContext& context, const std::optional<RecordBitmap>& from) {
  GraphicsObject object = Unusable();
  if (auto tile = from ? Decode(context, *from) : nullptr) {
    // It may be kept, so its memory weighs more than pixels that are painted.
    context.Target().ChargeWork(WorkPerKeptPixel * static_cast<std::int64_t>(tile->Pixels.size()));
    object = Brush{.Style = BrushStyle::Pattern, .Tile = std::move(tile)};
  }
  context.Target().ChargeWork(static_cast<std::int64_t>(context.Objects.Add(std::move(object))));
}

}  // namespace

void PlayPatBlt(DeviceContext& context, const MetafileRecord& record) {
  const QSize size(record.Int(3), record.Int(2));
  DrawBlit(context, {.Rop = RopOf(record),
                     .To = record.PointYX(4),
                     .Size = size,
                     .From = QRect(QPoint(0, 0), size)});
}

void PlayBitBlt(DeviceContext& context, const MetafileRecord& record) {
  const Blit blit = ReadBitBlt(record);
  if (!HasBitmap(record)) return DrawBlit(context, blit);
  DrawBitmap(context, blit,
             TwoColourBitmap(record, BitmapAtInBitBlt, BitmapAtInBitBlt + TwoColourHeadWords));
}

void PlayDibBitBlt(DeviceContext& context, const MetafileRecord& record) {
  const Blit blit = ReadBitBlt(record);
  if (!HasBitmap(record)) return DrawBlit(context, blit);
  DrawBitmap(context, blit, PackedBitmap(record, BitmapAtInBitBlt, TableOf::Colours));
}

void PlayStretchBlt(DeviceContext& context, const MetafileRecord& record) {
  DrawBitmap(context, ReadStretch(record, 2), TwoColourBitmap(record, 10, 10 + TwoColourHeadWords));
}

void PlayDibStretchBlt(DeviceContext& context, const MetafileRecord& record) {
  DrawBitmap(context, ReadStretch(record, 2), PackedBitmap(record, 10, TableOf::Colours));
}

void PlayStretchDib(DeviceContext& context, const MetafileRecord& record) {
  DrawBitmap(context, ReadStretch(record, 3), PackedBitmap(record, 11, TableIn(record.Word(2))));
}

void PlaySetDibToDevice(DeviceContext& context, const MetafileRecord& record) {
  const QSize size(record.Int(6), record.Int(5));
  const Blit blit{.Rop = SourceCopy,
                  .To = record.PointYX(7),
                  .Size = size,
                  .From = QRect(record.PointYX(3), size),
                  .SizeUnit = Blit::Unit::Pixels};
  DrawBitmap(context, blit, PackedBitmap(record, 9, TableIn(record.Word(0))));
}

void PlayDibCreatePatternBrush(DeviceContext& context, const MetafileRecord& record) {
  AddPatternBrush(context, PackedBitmap(record, 2, TableIn(record.Word(1))));
}

/// Between the bitmap's head and its bits this record has 20 words that are not used.
void PlayCreatePatternBrush(DeviceContext& context, const MetafileRecord& record) {
  constexpr qsizetype UnusedWords = 20;
  AddPatternBrush(context, TwoColourBitmap(record, 0, TwoColourHeadWords + UnusedWords));
}

}  // namespace terramark::metafile
