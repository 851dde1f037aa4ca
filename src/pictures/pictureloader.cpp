#include "pictures/pictureloader.h"

#include <QByteArrayView>
#include <QSize>
#include <QtEndian>
#include <memory>
#include <optional>
#include <string>

#include "forms/regularfile.h"
#include "pictures/dib.h"
#include "pictures/limits.h"
#include "pictures/metafileplayer.h"
#include "pictures/metafilereader.h"

namespace terramark::pictures {
namespace {

constexpr qsizetype BitmapHeaderBytes = 14;
constexpr qsizetype BitsOffsetAt = 10;

forms::Picture LoadBitmap(QByteArrayView bytes) {
  if (bytes.size() < BitmapHeaderBytes) return nullptr;
  const auto offset = qFromLittleEndian<std::uint32_t>(bytes.data() + BitsOffsetAt);
  // Some writers leave the offset empty: the rows then follow the colour table.
  std::optional<qsizetype> bitsAt;
  if (offset != 0) bitsAt = static_cast<qsizetype>(offset) - BitmapHeaderBytes;
  return DecodeDib(bytes.sliced(BitmapHeaderBytes), bitsAt);
}

forms::Picture LoadImage(QByteArrayView bytes, QSize box) {
  if (bytes.startsWith("BM")) return LoadBitmap(bytes);
  if (!MetafileReader::Recognises(bytes)) return nullptr;
  return PlayMetafile(bytes, box.boundedTo(QSize(MaxPictureBoxSide, MaxPictureBoxSide)));
}

// The file's bytes are gone before the pixels are copied.
forms::Picture LoadImageFile(const std::filesystem::path& path, QSize box) {
  const forms::RegularFile file(path);
  if (file.Size() > MaxMetafileBytes) return nullptr;
  const std::optional<std::string> bytes = file.Read(MaxMetafileBytes);
  return bytes ? LoadImage(*bytes, box) : nullptr;
}

}  // namespace

forms::Picture LoadPictureBytes(std::string_view bytes, int boxWidth, int boxHeight) {
  return LoadImage(bytes, QSize(boxWidth, boxHeight));
}

forms::Picture LoadPictureFile(const std::filesystem::path& path, int boxWidth, int boxHeight) {
  return LoadImageFile(path, QSize(boxWidth, boxHeight));
}

}  // namespace terramark::pictures
