#include "pictures/pictureloader.h"

#include <QByteArrayView>
#include <QImage>
#include <QSize>
#include <QtEndian>
#include <memory>
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

QImage LoadImage(QByteArrayView bytes, QSize box) {
  if (bytes.startsWith("BM")) return LoadBitmap(bytes);
  if (!MetafileReader::Recognises(bytes)) return {};
  return PlayMetafile(bytes, box.boundedTo(QSize(MaxPictureBoxSide, MaxPictureBoxSide)));
}

// The file's bytes are gone before the pixels are copied.
QImage LoadImageFile(const std::filesystem::path& path, QSize box) {
  const forms::RegularFile file(path);
  if (file.Size() > MaxPictureFileBytes) return {};
  const std::optional<std::string> bytes = file.Read(MaxPictureFileBytes);
  return bytes ? LoadImage(*bytes, box) : QImage();
}

forms::Picture PictureOf(const QImage& image) {
  if (image.isNull()) return nullptr;
  auto raster = std::make_shared<forms::Raster>();
  raster->Width = image.width();
  raster->Height = image.height();
  raster->Pixels.reserve(raster->At(0, raster->Height));
  for (int y = 0; y < image.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    raster->Pixels.insert(raster->Pixels.end(), row, row + image.width());
  }
  return raster;
}

}  // namespace

forms::Picture LoadPictureBytes(std::string_view bytes, int boxWidth, int boxHeight) {
  return PictureOf(LoadImage(bytes, QSize(boxWidth, boxHeight)));
}

forms::Picture LoadPictureFile(const std::filesystem::path& path, int boxWidth, int boxHeight) {
  return PictureOf(LoadImageFile(path, QSize(boxWidth, boxHeight)));
}

}  // namespace terramark::pictures
