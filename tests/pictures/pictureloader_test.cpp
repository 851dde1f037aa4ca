#include "pictures/pictureloader.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "pictures/dib.h"
#include "pictures/picturebytes.h"

namespace terramark::pictures {
namespace {

constexpr QSize Box(60, 40);
constexpr QRgb White = 0xFFFFFFFF;
constexpr QRgb Red = 0xFFFF0000;
constexpr QRgb Blue = 0xFF0000FF;

QByteArray Bytes(std::initializer_list<int> values) {
  QByteArray bytes;
  for (const int value : values) bytes.append(static_cast<char>(value));
  return bytes;
}

const std::vector<std::uint32_t> RedBlueWhite{0xFF0000, 0x0000FF, 0xFFFFFF};

// Each shows two rows of two pixels: red and blue above, white and red below. Of one bit there is
// no white to be had.
const DibBytes Bitmaps[]{
    {2, 2, 1, 0, {0xFF0000, 0x0000FF}, Bytes({0, 0, 0, 0, 0x40, 0, 0, 0})},
    {2, 2, 4, 0, RedBlueWhite, Bytes({0x20, 0, 0, 0, 0x01, 0, 0, 0})},
    {2, 2, 8, 0, RedBlueWhite, Bytes({2, 0, 0, 0, 0, 1, 0, 0})},
    {2, -2, 8, 0, RedBlueWhite, Bytes({0, 1, 0, 0, 2, 0, 0, 0})},             // top row first
    {2, 2, 8, 1, RedBlueWhite, Bytes({1, 2, 1, 0, 0, 0, 1, 0, 1, 1, 0, 1})},  // run lengths
    {2, 2, 16, 0, {}, Bytes({0xFF, 0x7F, 0x00, 0x7C, 0x00, 0x7C, 0x1F, 0x00})},
    {2, 2, 24, 0, {}, Bytes({255, 255, 255, 0, 0, 255, 0, 0, 0, 0, 255, 255, 0, 0, 0, 0})},
    {2, 2, 32, 0, {}, Bytes({255, 255, 255, 0, 0, 0, 255, 0, 0, 0, 255, 0, 255, 0, 0, 0})}};

TEST(PictureLoader, ReadsEveryKindOfBitmapAtItsOwnSize) {
  for (const DibBytes& bitmap : Bitmaps) {
    const QImage image = LoadPictureBytes(bitmap.File(), Box);
    ASSERT_EQ(image.size(), QSize(2, 2)) << bitmap.Bits;
    EXPECT_EQ(image.format(), QImage::Format_RGB32) << bitmap.Bits;
    EXPECT_EQ(image.pixel(0, 0), Red) << bitmap.Bits;
    EXPECT_EQ(image.pixel(1, 0), Blue) << bitmap.Bits;
    EXPECT_EQ(image.pixel(0, 1), bitmap.Bits > 1 ? White : Red) << bitmap.Bits;
  }
}

// Grey all over.
const DibBytes Sound{4, 4, 24, 0, {}, QByteArray(48, '\x40')};

TEST(PictureLoader, RefusesBitmapsThatLie) {
  const int sizes[][2]{
      {0, 4},  {-4, 4}, {4, 0}, {30000, 30000}, {16384, 16384}, {4, INT_MIN}, {INT_MAX, INT_MAX},
      {4, 400}};
  for (const auto& [width, height] : sizes) {
    const DibBytes dib{width, height, 24, 0, {}, Sound.Rows};
    EXPECT_TRUE(LoadPictureBytes(dib.File(), Box).isNull()) << width << " x " << height;
  }
  QByteArray farBits = Sound.File();
  farBits[12] = '\x7F';
  const std::pair<const char*, QByteArray> lies[]{
      {"odd bits", DibBytes{4, 4, 7, 0, {}, Sound.Rows}.File()},
      {"run lengths need 8 bits", DibBytes{4, 4, 24, 1, {}, Sound.Rows}.File()},
      {"half a header", Sound.File().first(30)},
      {"rows past the end of the file", farBits}};
  for (const auto& [what, bytes] : lies) {
    EXPECT_TRUE(LoadPictureBytes(bytes, Box).isNull()) << what;
  }
}

TEST(PictureLoader, ReadsWhatIsLeftOfACutBitmap) {
  const QImage image = LoadPictureBytes(Sound.File().chopped(15), Box);
  ASSERT_EQ(image.size(), QSize(4, 4));
  EXPECT_EQ(image.pixel(0, 3), 0xFF404040);
}

TEST(PictureLoader, TellsTheKindByContentAndNotByName) {
  const QTemporaryDir folder;
  const auto sizeOf = [&](const char* name, const QByteArray& bytes) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    return LoadPictureFile(file.fileName().toStdString(), Box).size();
  };
  EXPECT_EQ(sizeOf("map.wmf", Sound.File()), QSize(4, 4));
  EXPECT_EQ(sizeOf("map.bmp", MetafileBytes().Placeable(0, 0, 9, 9)), Box);
  EXPECT_TRUE(sizeOf("text.wmf", "Some text, no picture").isEmpty());
  EXPECT_TRUE(sizeOf("empty.bmp", "").isEmpty());
  EXPECT_TRUE(LoadPictureFile("missing.bmp", Box).isNull());
  EXPECT_TRUE(LoadPictureFile(folder.path().toStdString(), Box).isNull());
  ASSERT_TRUE(QFile::resize(folder.filePath("map.wmf"), qint64{MaxPictureFileBytes} + 1));
  EXPECT_TRUE(LoadPictureFile(folder.filePath("map.wmf").toStdString(), Box).isNull());
}

}  // namespace
}  // namespace terramark::pictures
