#include "qt/pictures/pictureloader.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <optional>

#include "qt/pictures/dib.h"
#include "qt/pictures/metafileplayer.h"
#include "qt/pictures/metafilereader.h"

namespace terramark::qt {
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

QImage LoadPictureFile(const QString& path, QSize box) {
  QFile file(path);
  // A pipe or a device could be read for ever.
  if (!QFileInfo(file).isFile() || file.size() > MaxPictureFileBytes) return {};
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QByteArray bytes = file.read(MaxPictureFileBytes);
  return LoadPictureBytes(bytes, box);
}

}  // namespace terramark::qt
