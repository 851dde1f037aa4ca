#include "pictures/pictureloader.h"

#include <QByteArrayView>
#include <QSize>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>

#include "pictures/dib.h"
#include "pictures/limits.h"
#include "pictures/metafileplayer.h"
#include "pictures/metafilereader.h"

namespace terramark::pictures {
namespace {

// What a file puts before a bitmap's own header.
constexpr qint64 FileHeaderBytes = 14;
constexpr qsizetype BitsOffsetAt = 10;

bool IsBitmap(QByteArrayView fileHeader) {
  return fileHeader.size() == FileHeaderBytes && fileHeader.startsWith("BM");
}

forms::Picture LoadBitmap(QByteArrayView fileHeader, ByteSource& dib) {
  const auto offset = qFromLittleEndian<std::uint32_t>(fileHeader.data() + BitsOffsetAt);
  // Some writers leave the offset empty: the rows then follow the colour table.
  std::optional<qint64> bitsAt;
  if (offset != 0) bitsAt = offset - FileHeaderBytes;
  return DecodeDib(dib, bitsAt);
}

forms::Picture LoadMetafile(QByteArrayView bytes, QSize box) {
  return PlayMetafile(bytes, box.boundedTo(QSize(MaxPictureBoxSide, MaxPictureBoxSide)));
}

/// The picture, or a read of the file that has failed, or else what is wrong with its bytes.
forms::LoadedPicture Loaded(forms::Picture picture, const forms::RegularFile& file,
                            const char* otherwise) {
  if (picture) return {std::move(picture), {}};
  return {nullptr, file.Why().empty() ? otherwise : file.Why()};
}

}  // namespace

forms::Picture LoadPictureBytes(std::string_view bytes, int boxWidth, int boxHeight) {
  const QByteArrayView all(bytes.data(), std::ssize(bytes));
  const QByteArrayView fileHeader = all.first(std::min(all.size(), FileHeaderBytes));
  if (!IsBitmap(fileHeader)) return LoadMetafile(all, QSize(boxWidth, boxHeight));
  MemoryBytes dib(all.sliced(FileHeaderBytes));
  return LoadBitmap(fileHeader, dib);
}

forms::LoadedPicture LoadPictureFile(const forms::RegularFile& file, int boxWidth, int boxHeight) {
  std::array<char, FileHeaderBytes> fileHeader{};
  if (file.ReadAt(0, fileHeader) && IsBitmap(fileHeader)) {
    FileBytes dib(file, FileHeaderBytes);
    return Loaded(LoadBitmap(fileHeader, dib), file, "the bitmap is damaged, too large or unusual");
  }
  if (file.Size() > MaxMetafileBytes)
    return Loaded(nullptr, file, "it is too large for a metafile");
  const std::string bytes = file.Read(MaxMetafileBytes).value_or("");
  if (!MetafileReader::Recognises(bytes)) {
    return Loaded(nullptr, file, "it is no bitmap or metafile");
  }
  return Loaded(LoadMetafile(bytes, QSize(boxWidth, boxHeight)), file, "nothing is drawn in it");
}

}  // namespace terramark::pictures
