#include "bitmap/dibheader.h"

#include <QtEndian>
#include <algorithm>
#include <cstdlib>

#include "bitmap/limits.h"

namespace terramark::bitmap {
namespace {

constexpr std::uint32_t CoreHeaderBytes = 12;
constexpr std::uint32_t InfoHeaderBytes = 40;
// The usual header with three masks, and with four.
constexpr std::uint32_t MasksHeaderBytes = 52;
constexpr std::uint32_t AlphaHeaderBytes = 56;
// The header of another system begins like the usual one, and may end anywhere after its bit count.
constexpr std::uint32_t MinHeaderBytes = 16;
constexpr std::uint32_t MaxOtherHeaderBytes = 64;
constexpr std::uint32_t Version4HeaderBytes = 108;
constexpr std::uint32_t Version5HeaderBytes = 124;
// Where the masks are, whether they belong to the header or follow it.
constexpr qsizetype MasksAt = 40;
constexpr qint64 HeadBytes = MasksAt + 12;

constexpr std::uint32_t Uncompressed = 0;
constexpr std::uint32_t RunLength8 = 1;
constexpr std::uint32_t RunLength4 = 2;
constexpr std::uint32_t BitFields = 3;
constexpr std::uint32_t AlphaBitFields = 6;

bool IsKnownLength(std::uint32_t bytes) {
  return bytes == CoreHeaderBytes || (bytes >= MinHeaderBytes && bytes <= MaxOtherHeaderBytes) ||
         bytes == Version4HeaderBytes || bytes == Version5HeaderBytes;
}

/// In the other system's header the number for masks means something else.
bool MayHaveMasks(std::uint32_t bytes) {
  return bytes == InfoHeaderBytes || bytes == MasksHeaderBytes || bytes == AlphaHeaderBytes ||
         bytes == Version4HeaderBytes || bytes == Version5HeaderBytes;
}

/// The fields as they are stored, 0 for those beyond the header's end.
class Fields {
 public:
  explicit Fields(QByteArrayView head) : bytes_(head.toByteArray()) {
    bytes_.append(HeadBytes - bytes_.size(), '\0');
  }

  std::uint16_t Word(qsizetype at) const {
    return qFromLittleEndian<std::uint16_t>(bytes_.constData() + at);
  }
  std::uint32_t Long(qsizetype at) const {
    return qFromLittleEndian<std::uint32_t>(bytes_.constData() + at);
  }
  qint64 Signed(qsizetype at) const { return static_cast<std::int32_t>(Long(at)); }

 private:
  QByteArray bytes_;
};

bool SetSize(DibHeader& header, qint64 width, qint64 height) {
  header.BottomUp = height > 0;
  height = std::abs(height);
  if (width < 1 || height < 1 || width > MaxBitmapSide || height > MaxBitmapSide) return false;
  header.Width = static_cast<int>(width);
  header.Height = static_cast<int>(height);
  return header.Pixels() <= MaxBitmapPixels;
}

bool IsUncompressedDepth(int bits) {
  return bits == 1 || bits == 2 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
}

/// As many as the pixels can number; pixels of more than 8 bits number none.
int AllColours(int bits) {
  return bits <= 8 ? 1 << bits : 0;
}

std::optional<DibHeader> ReadCore(const Fields& fields) {
  DibHeader header;
  header.Core = true;
  header.BitCount = fields.Word(10);
  header.TableAt = CoreHeaderBytes;
  if (!SetSize(header, fields.Word(4), fields.Word(6))) return std::nullopt;
  if (!IsUncompressedDepth(header.BitCount)) return std::nullopt;
  header.Masks = ChannelMasks::Usual(header.BitCount);
  header.Colours = AllColours(header.BitCount);
  return header;
}

/// `bytes` is the header's length.
bool SetCoding(DibHeader& header, std::uint32_t bytes, const Fields& fields) {
  const int bits = header.BitCount;
  header.Masks = ChannelMasks::Usual(bits);
  switch (const std::uint32_t compression = fields.Long(16)) {
    case Uncompressed:
      return IsUncompressedDepth(bits);
    case RunLength8:
    case RunLength4:
      header.RunLength = true;
      return bits == (compression == RunLength8 ? 8 : 4) && header.BottomUp;
    case BitFields:
    case AlphaBitFields: {
      if (!MayHaveMasks(bytes) || (bits != 16 && bits != 32)) return false;
      if (bytes == InfoHeaderBytes) header.TableAt += compression == BitFields ? 12 : 16;
      const auto masks = ChannelMasks::Of(bits, fields.Long(MasksAt), fields.Long(MasksAt + 4),
                                          fields.Long(MasksAt + 8));
      if (masks) header.Masks = *masks;
      return masks.has_value();
    }
    default:
      return false;
  }
}

}  // namespace

int DibHeader::UsedColours() const {
  return static_cast<int>(std::min<qint64>(Colours, AllColours(BitCount)));
}

std::optional<DibHeader> ReadDibHeader(ByteSource& dib) {
  if (dib.Size() < qint64{CoreHeaderBytes}) return std::nullopt;
  const std::optional<QByteArrayView> head = dib.At(0, std::min(dib.Size(), HeadBytes));
  if (!head) return std::nullopt;
  const auto bytes = qFromLittleEndian<std::uint32_t>(head->data());
  if (!IsKnownLength(bytes) || dib.Size() < qint64{bytes}) return std::nullopt;
  if (bytes == CoreHeaderBytes) return ReadCore(Fields(*head));

  // Masks may follow the usual header, but not a shorter one.
  const Fields fields(bytes < InfoHeaderBytes ? head->first(bytes) : *head);
  DibHeader header;
  header.BitCount = fields.Word(14);
  header.TableAt = bytes;
  if (!SetSize(header, fields.Signed(4), fields.Signed(8))) return std::nullopt;
  if (!SetCoding(header, bytes, fields)) return std::nullopt;
  header.Colours = fields.Long(32);
  if (header.Colours == 0) header.Colours = AllColours(header.BitCount);
  return header;
}

}  // namespace terramark::bitmap
