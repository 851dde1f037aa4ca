#include "pictures/pictureloader.h"

#include <QtEndian>
#include <optional>
#include <string>

#include "forms/regularfile.h"
#include "pictures/dib.h"
#include "pictures/metafileplayer.h"
#include "pictures/metafilereader.h"

namespace terramark::pictures {
namespace {

constexpr qsizetype BitmapHeaderBytes = 14;
constexpr qsizetype BitsOffsetAt = 10;

QImage LoadBitmap(QByteArrayView bytes) {
  if (bytes.size() < BitmapHeaderBytes) return {};
  const auto offset = qFromLittleEndian<std::uint32_t>(bytes.data() + BitsOffsetAt);
  // Some writers leave the offset empty: the rows then follow the colour table.
  std::optional<qsizetype> bitsAt;
  if (offset != 0) bitsAt = static_cast<qsizetype>(offset) - BitmapHeaderBytes;
  return DecodeDib(bytes.sliced(BitmapHeaderBytes), bitsAt);
}

}  // namespace

QImage LoadPictureBytes(QByteArrayView bytes, QSize box) {
  if (bytes.startsWith("BM")) return LoadBitmap(bytes);
  if (!MetafileReader::Recognises(bytes)) return {};
  return PlayMetafile(bytes, box.boundedTo(QSize(MaxPictureBoxSide, MaxPictureBoxSide)));
}

QImage LoadPictureFile(const std::filesystem::path& path, QSize box) {
  const forms::RegularFile file(path);
  if (file.Size() > MaxPictureFileBytes) return {};
  const std::optional<std::string> bytes = file.Read(MaxPictureFileBytes);
  return bytes ? LoadPictureBytes(*bytes, box) : QImage();
}

}  // namespace terramark::pictures
