#include "qt/pictures/pictureloader.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "picturebytes.h"
#include "qt/pictures/dib.h"

namespace terramark::qt {
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

struct BitmapCase {
  const char* Kind;
  DibBytes Dib;
};

// Each shows two rows of two pixels: red and blue above, white and red below.
const BitmapCase BitmapCases[] = {
    {"1 bit, no white to be had",
     {2, 2, 1, 0, {0xFF0000, 0x0000FF}, Bytes({0, 0, 0, 0, 0x40, 0, 0, 0})}},
    {"4 bit", {2, 2, 4, 0, {0xFF0000, 0x0000FF, 0xFFFFFF}, Bytes({0x20, 0, 0, 0, 0x01, 0, 0, 0})}},
    {"8 bit", {2, 2, 8, 0, {0xFF0000, 0x0000FF, 0xFFFFFF}, Bytes({2, 0, 0, 0, 0, 1, 0, 0})}},
    {"8 bit, top row first",
     {2, -2, 8, 0, {0xFF0000, 0x0000FF, 0xFFFFFF}, Bytes({0, 1, 0, 0, 2, 0, 0, 0})}},
    {"8 bit, run lengths",
     {2, 2, 8, 1, {0xFF0000, 0x0000FF, 0xFFFFFF}, Bytes({1, 2, 1, 0, 0, 0, 1, 0, 1, 1, 0, 1})}},
    {"16 bit", {2, 2, 16, 0, {}, Bytes({0xFF, 0x7F, 0x00, 0x7C, 0x00, 0x7C, 0x1F, 0x00})}},
    {"24 bit",
     {2, 2, 24, 0, {}, Bytes({255, 255, 255, 0, 0, 255, 0, 0, 0, 0, 255, 255, 0, 0, 0, 0})}},
    {"32 bit",
     {2, 2, 32, 0, {}, Bytes({255, 255, 255, 0, 0, 0, 255, 0, 0, 0, 255, 0, 255, 0, 0, 0})}},
};

TEST(PictureLoader, ReadsEveryKindOfBitmapAtItsOwnSize) {
  for (const BitmapCase& bitmap : BitmapCases) {
    const QImage image = LoadPictureBytes(bitmap.Dib.File(), Box);
    ASSERT_EQ(image.size(), QSize(2, 2)) << bitmap.Kind;
    EXPECT_EQ(image.format(), QImage::Format_RGB32) << bitmap.Kind;
    EXPECT_EQ(image.pixel(0, 0), Red) << bitmap.Kind;
    EXPECT_EQ(image.pixel(1, 0), Blue) << bitmap.Kind;
    EXPECT_EQ(image.pixel(0, 1), bitmap.Dib.Bits > 1 ? White : Red) << bitmap.Kind;
  }
}

TEST(PictureLoader, RefusesBitmapsThatLie) {
  DibBytes sound{4, 4, 24, 0, {}, QByteArray(48, '\x40')};
  ASSERT_FALSE(LoadPictureBytes(sound.File(), Box).isNull());
  const auto refused = [](DibBytes dib) { return LoadPictureBytes(dib.File(), Box).isNull(); };
  for (const QSize size :
       {QSize(0, 4), QSize(-4, 4), QSize(4, 0), QSize(30000, 30000), QSize(16384, 16384),
        QSize(4, INT_MIN), QSize(INT_MAX, INT_MAX), QSize(4, 400)}) {
    DibBytes dib = sound;
    dib.Width = size.width();
    dib.Height = size.height();
    EXPECT_TRUE(refused(dib)) << size.width() << " x " << size.height();
  }
  DibBytes oddBits = sound;
  oddBits.Bits = 7;
  EXPECT_TRUE(refused(oddBits));
  DibBytes runs = sound;
  runs.Compression = 1;
  EXPECT_TRUE(refused(runs)) << "run lengths need 8 bits";
  EXPECT_TRUE(LoadPictureBytes(sound.File().first(30), Box).isNull()) << "half a header";
  QByteArray farBits = sound.File();
  farBits[12] = '\x7F';
  EXPECT_TRUE(LoadPictureBytes(farBits, Box).isNull()) << "rows past the end of the file";
}

TEST(PictureLoader, ReadsWhatIsLeftOfACutBitmap) {
  const DibBytes dib{4, 4, 24, 0, {}, QByteArray(48, '\x40')};
  const QImage image = LoadPictureBytes(dib.File().chopped(15), Box);
  ASSERT_EQ(image.size(), QSize(4, 4));
  EXPECT_EQ(image.pixel(0, 3), 0xFF404040);
}

TEST(PictureLoader, TellsTheKindByContentAndNotByName) {
  const QTemporaryDir folder;
  const auto write = [&](const char* name, const QByteArray& bytes) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return folder.filePath(name);
  };
  const DibBytes dib{4, 4, 24, 0, {}, QByteArray(48, '\x40')};
  EXPECT_EQ(LoadPictureFile(write("map.wmf", dib.File()), Box).size(), QSize(4, 4));
  const QByteArray metafile = MetafileBytes().Window(9, 9).Placeable(0, 0, 9, 9);
  EXPECT_EQ(LoadPictureFile(write("map.bmp", metafile), Box).size(), Box);
  EXPECT_TRUE(LoadPictureFile(write("text.wmf", "Some text, no picture"), Box).isNull());
  EXPECT_TRUE(LoadPictureFile(write("empty.bmp", ""), Box).isNull());
  EXPECT_TRUE(LoadPictureFile(folder.filePath("missing.bmp"), Box).isNull());
  EXPECT_TRUE(LoadPictureFile(folder.path(), Box).isNull());
  QFile huge(folder.filePath("huge.bmp"));
  ASSERT_TRUE(huge.open(QIODevice::WriteOnly));
  huge.write(dib.File());
  ASSERT_TRUE(huge.resize(MaxPictureFileBytes + 1));
  huge.close();
  EXPECT_TRUE(LoadPictureFile(huge.fileName(), Box).isNull());
}

}  // namespace
}  // namespace terramark::qt
