#include "pictures/pictureloader.h"

#include <QByteArrayView>
#include <QSize>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>

#include "bitmap/dib.h"
#include "metafile/limits.h"
#include "metafile/metafileplayer.h"
#include "metafile/metafilereader.h"

namespace terramark::pictures {
namespace {

/// The length of a bitmap file's header, before the bitmap's own. In a file with an array of
/// bitmaps another one of the same length precedes it.
constexpr qint64 FileHeaderBytes = 14;
constexpr qsizetype BitsOffsetAt = 10;

/// Where a bitmap file has its bitmap, and the bitmap its rows.
struct BitmapPlaces {
  qint64 Dib = 0;   // from the file's first byte
  qint64 Bits = 0;  // from the bitmap's first byte; unusable when it points into its header
};

/// None when the file does not begin like a bitmap. Of an array the first bitmap is taken. `begin`
/// has the first bytes of the file, two headers of them if it is long enough.
std::optional<BitmapPlaces> FindBitmap(QByteArrayView begin) {
  const qint64 array = begin.startsWith("BA") ? FileHeaderBytes : 0;
  if (begin.size() < array + FileHeaderBytes) return std::nullopt;
  const QByteArrayView fileHeader = begin.sliced(array, FileHeaderBytes);
  if (!fileHeader.startsWith("BM")) return std::nullopt;
  const auto offset = qFromLittleEndian<std::uint32_t>(fileHeader.data() + BitsOffsetAt);
  const qint64 dib = array + FileHeaderBytes;
  return BitmapPlaces{.Dib = dib, .Bits = offset - dib};
}

forms::Picture LoadBitmap(bitmap::ByteSource& dib, qint64 bitsAt) {
  const std::optional<bitmap::DibHeader> header = bitmap::ReadDibHeader(dib);
  return header ? bitmap::DecodeDib(dib, *header, bitsAt) : nullptr;
}

forms::LoadedPicture DrawMetafile(const metafile::Metafile& read, int boxWidth, int boxHeight) {
  return metafile::PlayMetafile(read, {std::min(boxWidth, metafile::MaxPictureBoxSide),
                                       std::min(boxHeight, metafile::MaxPictureBoxSide)});
}

forms::LoadedPicture Unreadable(const files::Fault& fault) {
  return tl::unexpected(fault.Description());
}

}  // namespace

forms::Picture LoadPictureBytes(std::string_view bytes, int boxWidth, int boxHeight) {
  const QByteArrayView all(bytes.data(), std::ssize(bytes));
  if (const auto places = FindBitmap(all)) {
    bitmap::MemoryBytes dib(all.sliced(places->Dib));
    return LoadBitmap(dib, places->Bits);
  }
  const auto read = metafile::ReadMetafile(all);
  return read ? DrawMetafile(*read, boxWidth, boxHeight).value_or(nullptr) : nullptr;
}

forms::LoadedPicture LoadPictureFile(const files::RegularFile& file, int boxWidth, int boxHeight) {
  std::array<char, 2 * FileHeaderBytes> begin{};
  const auto begun = file.ReadAt(0, begin);
  if (!begun) return Unreadable(begun.error());
  if (const auto places = FindBitmap(QByteArrayView(begin).first(static_cast<qsizetype>(*begun)))) {
    bitmap::FileBytes dib(file, places->Dib);
    forms::Picture picture = LoadBitmap(dib, places->Bits);
    if (picture) return picture;
    if (dib.Fault()) return Unreadable(*dib.Fault());
    return tl::unexpected<std::string>("the bitmap is damaged, too large or unusual");
  }
  if (file.Size() > metafile::MaxMetafileBytes)
    return tl::unexpected<std::string>("it is too large for a metafile");
  const auto bytes = file.Read(metafile::MaxMetafileBytes);
  if (!bytes) return Unreadable(bytes.error());
  const auto read = metafile::ReadMetafile(*bytes);
  if (!read) return tl::unexpected<std::string>("it is no bitmap or metafile");
  return DrawMetafile(*read, boxWidth, boxHeight);
}

}  // namespace terramark::pictures
