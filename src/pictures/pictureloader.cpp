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

/// The length of a bitmap file's header, before the bitmap's own.
constexpr qint64 FileHeaderBytes = 14;
constexpr qsizetype BitsOffsetAt = 10;

bool IsBitmap(QByteArrayView fileHeader) {
  return fileHeader.size() == FileHeaderBytes && fileHeader.startsWith("BM");
}

forms::Picture LoadBitmap(QByteArrayView fileHeader, bitmap::ByteSource& dib) {
  const std::optional<bitmap::DibHeader> header = bitmap::ReadDibHeader(dib);
  if (!header) return nullptr;
  const auto offset = qFromLittleEndian<std::uint32_t>(fileHeader.data() + BitsOffsetAt);
  // Some programs leave the offset empty: then the rows follow the colour table.
  std::optional<qint64> bitsAt;
  if (offset != 0) bitsAt = offset - FileHeaderBytes;
  return bitmap::DecodeDib(dib, *header, bitsAt);
}

forms::Picture DrawMetafile(const metafile::Metafile& read, int boxWidth, int boxHeight) {
  return metafile::PlayMetafile(read, {std::min(boxWidth, metafile::MaxPictureBoxSide),
                                       std::min(boxHeight, metafile::MaxPictureBoxSide)});
}

/// The picture or, if there is none, the fault of the bytes.
forms::LoadedPicture PictureOr(const char* fault, forms::Picture picture) {
  if (!picture) return tl::unexpected<std::string>(fault);
  return picture;
}

forms::LoadedPicture Unreadable(const files::Fault& fault) {
  return tl::unexpected(fault.Description());
}

}  // namespace

forms::Picture LoadPictureBytes(std::string_view bytes, int boxWidth, int boxHeight) {
  const QByteArrayView all(bytes.data(), std::ssize(bytes));
  const QByteArrayView fileHeader = all.first(std::min(all.size(), FileHeaderBytes));
  if (!IsBitmap(fileHeader)) {
    const auto read = metafile::ReadMetafile(all);
    return read ? DrawMetafile(*read, boxWidth, boxHeight) : nullptr;
  }
  bitmap::MemoryBytes dib(all.sliced(FileHeaderBytes));
  return LoadBitmap(fileHeader, dib);
}

forms::LoadedPicture LoadPictureFile(const files::RegularFile& file, int boxWidth, int boxHeight) {
  std::array<char, FileHeaderBytes> fileHeader{};
  const auto begun = file.ReadAt(0, fileHeader);
  if (!begun) return Unreadable(begun.error());
  if (*begun == fileHeader.size() && IsBitmap(fileHeader)) {
    bitmap::FileBytes dib(file, FileHeaderBytes);
    forms::Picture picture = LoadBitmap(fileHeader, dib);
    if (!picture && dib.Fault()) return Unreadable(*dib.Fault());
    return PictureOr("the bitmap is damaged, too large or unusual", std::move(picture));
  }
  if (file.Size() > metafile::MaxMetafileBytes)
    return tl::unexpected<std::string>("it is too large for a metafile");
  const auto bytes = file.Read(metafile::MaxMetafileBytes);
  if (!bytes) return Unreadable(bytes.error());
  const auto read = metafile::ReadMetafile(*bytes);
  if (!read) return tl::unexpected<std::string>("it is no bitmap or metafile");
  return PictureOr("nothing is drawn in it", DrawMetafile(*read, boxWidth, boxHeight));
}

}  // namespace terramark::pictures
