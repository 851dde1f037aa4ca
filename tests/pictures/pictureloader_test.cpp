#include "pictures/pictureloader.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "pictures/limits.h"
#include "pictures/picturebytes.h"

namespace terramark::pictures {
namespace {

using Pixels = std::vector<std::uint32_t>;

forms::Picture Load(const QByteArray& bytes) {
  return LoadPictureBytes({bytes.data(), static_cast<std::size_t>(bytes.size())}, 60, 40);
}

QByteArray Bytes(std::initializer_list<int> values) {
  QByteArray bytes;
  for (const int value : values) bytes.append(static_cast<char>(value));
  return bytes;
}

const Pixels RedBlueWhite{0xFF0000, 0x0000FF, 0xFFFFFF};

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
    const forms::Picture picture = Load(bitmap.File());
    ASSERT_TRUE(picture && picture->Width == 2 && picture->Height == 2) << bitmap.Bits;
    const std::uint32_t last = bitmap.Bits > 1 ? White : Red;
    EXPECT_EQ(picture->Pixels, (Pixels{Red, Blue, last, Red})) << bitmap.Bits;
  }
}

// Grey all over.
const DibBytes Sound{4, 4, 24, 0, {}, QByteArray(48, '\x40')};

TEST(PictureLoader, RefusesBitmapsThatLieAndReadsWhatIsLeftOfACutOne) {
  QByteArray farBits = Sound.File();
  farBits[12] = '\x7F';
  std::vector<std::pair<const char*, QByteArray>> lies{
      {"odd bits", DibBytes{4, 4, 7, 0, {}, Sound.Rows}.File()},
      {"run lengths need 8 bits", DibBytes{4, 4, 24, 1, {}, Sound.Rows}.File()},
      {"half a header", Sound.File().first(30)},
      {"rows past the end of the file", farBits}};
  const int sizes[][2]{
      {0, 4},  {-4, 4}, {4, 0}, {30000, 30000}, {16384, 16384}, {4, INT_MIN}, {INT_MAX, INT_MAX},
      {4, 400}};
  for (const auto& [width, height] : sizes) {
    lies.emplace_back("size", DibBytes{width, height, 24, 0, {}, Sound.Rows}.File());
  }
  for (const auto& [what, bytes] : lies) {
    EXPECT_EQ(Load(bytes), nullptr) << what << " " << bytes.mid(18, 8).toHex().data();
  }
  EXPECT_EQ(Load(Sound.File().chopped(15))->Pixels.at(12), 0xFF404040);
}

TEST(PictureLoader, TellsTheKindByContentAndNotByName) {
  const QTemporaryDir folder;
  const auto load = [&](const char* name) {
    return LoadPictureFile(folder.filePath(name).toStdString(), 60, 40);
  };
  const auto widthOf = [&](const char* name, const QByteArray& bytes) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    const forms::Picture picture = load(name);
    return picture ? picture->Width : 0;
  };
  EXPECT_EQ(widthOf("map.wmf", Sound.File()), 4);
  EXPECT_EQ(widthOf("map.bmp", MetafileBytes().Placeable(0, 0, 9, 9)), 60);
  EXPECT_EQ(widthOf("text.wmf", "Some text, no picture"), 0);
  EXPECT_EQ(widthOf("empty.bmp", ""), 0);
  EXPECT_EQ(load("missing.bmp"), nullptr);
  EXPECT_EQ(load("."), nullptr);
  ASSERT_TRUE(QFile::resize(folder.filePath("map.wmf"), qint64{MaxMetafileBytes} + 1));
  EXPECT_EQ(load("map.wmf"), nullptr);
}

}  // namespace
}  // namespace terramark::pictures
