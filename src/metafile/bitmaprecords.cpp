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

/// The bytes of a bitmap, each of which is paid for when it is read; a read fails when the budget
/// is used up.
class PaidBytes final : public bitmap::ByteSource {
 public:
  PaidBytes(QByteArrayView bytes, Budget& budget) : bytes_(bytes), budget_(budget) {}

  qint64 Size() const override { return bytes_.Size(); }
  std::optional<QByteArrayView> At(qint64 offset, qint64 count) override {
    return budget_.Spend(count) ? bytes_.At(offset, count) : std::nullopt;
  }

 private:
  bitmap::MemoryBytes bytes_;
  Budget& budget_;
};

/// The bitmap in a record. Its size is in pixels, at least 1 each way.
struct RecordBitmap {
  int Width = 0;
  int Height = 0;
  bool BottomUp = false;
  /// Decodes it; null when it is broken, or when the budget is used up.
  std::function<forms::Picture(DeviceContext& context)> Decode;

  std::int64_t Pixels() const { return std::int64_t{Width} * Height; }
};

/// Decodes the older bitmap of two colours: clear bits have the text colour, set bits the
/// background colour.
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

/// The older kind of bitmap: its head is at the word `at` of the record, its bits begin at the word
/// `bitsAt`. None when it is broken or too large.
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
                      .Decode = [=, bits = record.From(bitsAt)](DeviceContext& context) {
                        return DecodeTwoColours(context, size, rowBytes, bits);
                      }};
}

/// What the colour table of a bitmap contains.
enum class TableOf { Colours, PaletteEntries };

TableOf TableIn(int colourUse) {
  return colourUse == PaletteColours ? TableOf::PaletteEntries : TableOf::Colours;
}

/// A bitmap with header, colour table and rows at the word `at` of the record. None when it is
/// broken or too large.
std::optional<RecordBitmap> PackedBitmap(const MetafileRecord& record, qsizetype at,
                                         TableOf table) {
  const QByteArrayView bytes = record.From(at);
  bitmap::MemoryBytes source(bytes);
  const std::optional<bitmap::DibHeader> header = bitmap::ReadDibHeader(source);
  if (!header) return std::nullopt;
  return RecordBitmap{.Width = header->Width,
                      .Height = header->Height,
                      .BottomUp = header->BottomUp,
                      .Decode = [=, header = *header](DeviceContext& context) {
                        PaidBytes dib(bytes, context.Target().Cost());
                        return table == TableOf::Colours
                                   ? bitmap::DecodeDib(dib, header, std::nullopt)
                                   : bitmap::DecodeDibByPalette(
                                         dib, header, context.State.CurrentPalette.Entries());
                      }};
}

/// Null when the bitmap is broken, or when the budget is used up.
forms::Picture Decode(DeviceContext& context, const RecordBitmap& from) {
  if (!context.Target().Cost().Spend(from.Pixels())) return nullptr;
  return from.Decode(context);
}

/// Draws nothing without a bitmap.
void DrawBitmap(DeviceContext& context, Blit blit, const std::optional<RecordBitmap>& from) {
  if (!from) return;
  // Rows of the source rectangle are counted from the first stored row.
  if (from->BottomUp) blit.From.moveTop(from->Height - blit.From.top() - blit.From.height());
  DrawBlit(context, blit, [&] { return Decode(context, *from); });
}

int RopOf(const MetafileRecord& record) {
  return record.Word(1) & 0xFF;
}

/// Without one a record fills with the brush.
bool HasBitmap(const MetafileRecord& record) {
  // A record without a bitmap is no longer than this.
  constexpr qsizetype WordsWithout = 9;
  return record.Words() > WordsWithout;
}

constexpr qsizetype BitmapAtInBitBlt = 8;

/// Reads BitBlt and DibBitBlt. Without a bitmap the target is one word later, after an unused one.
Blit ReadBitBlt(const MetafileRecord& record) {
  const qsizetype at = HasBitmap(record) ? 4 : 5;
  const QSize size(record.Int(at + 1), record.Int(at));
  return {.Rop = RopOf(record),
          .To = record.PointYX(at + 2),
          .Size = size,
          .From = QRect(record.PointYX(2), size)};
}

/// Reads the records that stretch. Their source and target begin at the word `at`.
Blit ReadStretch(const MetafileRecord& record, qsizetype at) {
  return {.Rop = RopOf(record),
          .To = record.PointYX(at + 6),
          .Size = {record.Int(at + 5), record.Int(at + 4)},
          .From = QRect(record.PointYX(at + 2), QSize(record.Int(at + 1), record.Int(at)))};
}

/// A brush that fails still takes its number: later records count on it.
void AddPatternBrush(DeviceContext& context, const std::optional<RecordBitmap>& from) {
  GraphicsObject object = Unusable();
  Budget& cost = context.Target().Cost();
  if (auto tile = from ? Decode(context, *from) : nullptr) {
    if (!cost.Keep(from->Pixels() * std::int64_t{sizeof(QRgb)})) return;
    object = Brush{.Style = BrushStyle::Pattern, .Tile = std::move(tile)};
  }
  cost.Spend(static_cast<std::int64_t>(context.Objects.Add(std::move(object))));
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

/// This record has an unused address and 18 unused bytes between the bitmap's head and its bits.
void PlayCreatePatternBrush(DeviceContext& context, const MetafileRecord& record) {
  constexpr qsizetype UnusedWords = 11;
  AddPatternBrush(context, TwoColourBitmap(record, 0, TwoColourHeadWords + UnusedWords));
}

}  // namespace terramark::metafile
