#include "pictures/pictureloader.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "bitmap/dib.h"
#include "files/regularfile.h"
#include "metafile/limits.h"
#include "support/picturebytes.h"

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

Pixels Padded(Pixels colours, std::size_t size) {
  colours.resize(size);
  return colours;
}

const QByteArray RowsOf8 = Bytes({2, 0, 0, 0, 0, 1, 0, 0});
const QByteArray RowsOf24 = Bytes({255, 255, 255, 0, 0, 255, 0, 0, 0, 0, 255, 255, 0, 0, 0, 0});

// Each shows two rows of two pixels: red and blue above, white and red below. With one bit
// there are two colours only: the white one is red.
const DibBytes Bitmaps[]{
    {2, 2, 1, 0, {0xFF0000, 0x0000FF}, Bytes({0, 0, 0, 0, 0x40, 0, 0, 0})},
    {2, 2, 1, 0, {0xFF0000, 0x0000FF}, Bytes({0, 0, 0, 0, 0x40, 0, 0, 0}), 12},
    {2, 2, 2, 0, RedBlueWhite, Bytes({0x80, 0, 0, 0, 0x10, 0, 0, 0})},
    {2, 2, 4, 0, RedBlueWhite, Bytes({0x20, 0, 0, 0, 0x01, 0, 0, 0})},
    {2, 2, 8, 0, RedBlueWhite, RowsOf8},
    {2, 2, 8, 0, Padded(RedBlueWhite, 300), RowsOf8, 64},
    {2, -2, 8, 0, RedBlueWhite, Bytes({0, 1, 0, 0, 2, 0, 0, 0}), 124},        // top row first
    {2, 2, 8, 1, RedBlueWhite, Bytes({1, 2, 1, 0, 0, 0, 1, 0, 1, 1, 0, 1})},  // run lengths
    {2, 2, 4, 2, RedBlueWhite, Bytes({2, 0x20, 0, 0, 2, 0x01, 0, 1}), 108},
    {2, 2, 16, 0, {}, Bytes({0xFF, 0x7F, 0x00, 0x7C, 0x00, 0x7C, 0x1F, 0x00})},
    {2, 2, 24, 0, {}, RowsOf24, 16},
    {2, 2, 24, 0, Padded({}, 257), RowsOf24},
    {2, 2, 32, 0, {}, Bytes({255, 255, 255, 0, 0, 0, 255, 0, 0, 0, 255, 0, 255, 0, 0, 0})}};

TEST(PictureLoader, ReadsEveryKindOfBitmapAtItsOwnSize) {
  for (const DibBytes& bitmap : Bitmaps) {
    const QByteArray file = bitmap.File();
    QByteArray inHeader = file;
    QByteArray inColours = file;
    inHeader.replace(10, 4, Long(20));
    if (!bitmap.Colours.empty()) inColours.replace(10, 4, Long(14 + bitmap.HeaderBytes + 3));
    QByteArray array = "BA" + QByteArray(12, 0) + file;
    array.replace(24, 4, Long(array.size() - bitmap.Rows.size()));
    for (const QByteArray& bytes : {file, inHeader, inColours, array}) {
      const forms::Picture picture = Load(bytes);
      ASSERT_TRUE(picture && picture->Width == 2 && picture->Height == 2) << bytes.toHex().data();
      const std::uint32_t last = bitmap.Bits > 1 ? White : Red;
      EXPECT_EQ(picture->Pixels, (Pixels{Red, Blue, last, Red})) << bytes.toHex().data();
    }
  }
}

TEST(PictureLoader, MasksMayHaveAnyWidthAndPlaceButMustMakeSense) {
  constexpr std::uint32_t Refused = 0;
  const struct {
    int Bits, HeaderBytes;
    std::uint32_t Compression;
    Pixels Masks;
    std::uint32_t Stored, Pixel;
  } cases[]{{16, 40, 3, {0x7C00, 0x03E0, 0x001F}, 0xFC63, 0xFFFF1919},
            {16, 52, 3, {0xF800, 0x07E0, 0x001F}, 0x07FF, 0xFF00FFFF},
            {16, 40, 6, {0x0F00, 0x00F0, 0x000F, 0xF000}, 0x0F81, 0xFFFF8811},
            {16, 56, 6, {0x0001, 0x7FFE, 0x8000, 0}, 0x8001, 0xFFFF00FF},
            {32, 56, 3, {0x000003FF, 0x000FFC00, 0x3FF00000, 0xC0000000}, 0xFFF80001, 0xFF0080FF},
            {32, 108, 3, {0xFE000000, 0x01FFFF80, 0x0000007F}, 0xFEFFFF80, 0xFFFF7F00},
            {32, 124, 3, {0xFFFFFFFF, 0, 0}, 0x80808080, 0xFF800000},
            {32, 40, 3, {0, 0, 0}, 0x808080, Refused},
            {32, 40, 3, {0xFF0000, 0x01FF00, 0xFF}, 0x808080, Refused},
            {32, 40, 3, {0xFF0000, 0x00FD00, 0xFF}, 0x808080, Refused},
            {16, 40, 3, {0x1F000, 0x0FE0, 0x1F}, 0x8080, Refused},
            {24, 40, 3, {0xFF0000, 0xFF00, 0xFF}, 0x808080, Refused},
            {32, 64, 3, {0xFF0000, 0xFF00, 0xFF}, 0x808080, Refused}};
  for (const auto& [bits, headerBytes, compression, masks, stored, pixel] : cases) {
    const DibBytes bitmap{1, 1, bits, compression, {}, Long(stored), headerBytes, masks};
    // Without an offset, so that the rows have to be found behind the masks.
    const forms::Picture picture = Load(bitmap.File().replace(10, 4, Long(0)));
    EXPECT_EQ(picture ? picture->Pixels.at(0) : Refused, pixel) << std::hex << pixel << masks[1];
  }
}

// Pixels that the codes skip have the first colour.
TEST(PictureLoader, RunLengthsSkipClipAndBreakOff) {
  const struct {
    int Bits;
    QByteArray Codes;
    const char* Shown;  // digits of colours, the upper row first
  } cases[]{{8, Bytes({1, 1, 0, 2, 1, 1, 9, 2, 9, 1, 0, 1}), "0022 1000"},
            {8, Bytes({1, 1, 0, 5, 2, 1, 2, 1, 2, 0, 0, 0, 1, 2, 0, 1}), "2000 1212"},
            {8, Bytes({0, 3, 1, 2, 1, 0, 0, 2, 9, 0, 2, 2}), "0000 1210"},
            {8, Bytes({4, 1, 0, 2, 0, 200, 2, 2}), "0000 1111"},
            {8, Bytes({2, 1, 0, 1, 2, 2}), "0000 1100"},
            {8, Bytes({2, 1, 0, 3, 2}), "0000 1120"},
            {4, Bytes({3, 0x12, 0, 0, 0, 3, 0x12, 0x20, 0, 1}), "1220 1210"},
            {4, Bytes({0, 5, 0x12, 0x12, 0x10, 0, 0, 0, 9, 0x21}), "2121 1212"}};
  for (const auto& [bits, codes, shown] : cases) {
    const auto compression = bits == 8 ? 1U : 2U;
    const forms::Picture picture =
        Load(DibBytes{4, 2, bits, compression, RedBlueWhite, codes}.File());
    ASSERT_TRUE(picture) << shown;
    std::string digits;
    for (const std::uint32_t pixel : picture->Pixels) {
      if (digits.size() == 4) digits += ' ';
      digits += pixel == Red ? '0' : pixel == Blue ? '1' : '2';
    }
    EXPECT_EQ(digits, shown);
  }
}

// Grey all over.
const DibBytes Sound{4, 4, 24, 0, {}, QByteArray(48, '\x40')};

TEST(PictureLoader, RefusesBitmapsThatLieAndReadsWhatIsLeftOfACutOne) {
  const auto patched = [](qsizetype at, qint64 value) {
    return Sound.File().replace(10, 4, Long(0)).replace(at, 4, Long(value));
  };
  std::vector<std::pair<const char*, QByteArray>> lies{
      {"odd bits", DibBytes{4, 4, 7, 0, {}, Sound.Rows}.File()},
      {"run lengths need 8 bits", DibBytes{4, 4, 24, 1, {}, Sound.Rows}.File()},
      {"run lengths need the lowest row first", DibBytes{4, -4, 8, 1, {}, Sound.Rows}.File()},
      {"another kind of picture inside", DibBytes{4, 4, 24, 4, {}, Sound.Rows}.File()},
      {"a header too short to have a depth", DibBytes{4, 4, 24, 0, {}, Sound.Rows, 14}.File()},
      {"more colours than bytes", patched(46, -1)},
      {"half a header", Sound.File().first(30)},
      {"rows past the end of the file", patched(10, 0x7F0000)}};
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
  // Fewer colours than claimed; the number beyond them is black.
  const forms::Picture few =
      Load(DibBytes{2, 1, 8, 0, RedBlueWhite, Bytes({2, 3, 0, 0}), 12}.File());
  EXPECT_EQ(few->Pixels, (Pixels{White, Black}));
}

struct PictureFile : testing::Test {
  QTemporaryDir Folder;

  std::filesystem::path Path(const char* name) const { return Folder.filePath(name).toStdString(); }
  forms::LoadedPicture LoadFile(const char* name) const {
    const auto file = files::RegularFile::Open(Path(name));
    if (!file) return tl::unexpected(file.error().Description());
    return LoadPictureFile(*file, 60, 40);
  }
  void Write(const char* name, const QByteArray& bytes) const {
    QFile file(Folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
  }
};

TEST_F(PictureFile, IsToldByContentAndNotByName) {
  const auto told = [&](const char* name, const QByteArray& bytes = {}) {
    if (!bytes.isNull()) Write(name, bytes);
    const forms::LoadedPicture loaded = LoadFile(name);
    return loaded ? std::to_string((*loaded)->Width) : loaded.error();
  };
  EXPECT_EQ(told("map.wmf", Sound.File()), "4");
  EXPECT_EQ(told("map.bmp", MetafileBytes().Placeable(0, 0, 9, 9)), "60");
  EXPECT_EQ(told("blank.wmf", MetafileBytes().Plain()), "nothing is drawn in it");
  EXPECT_EQ(told("text.wmf", "Some text, no picture"), "it is no bitmap or metafile");
  EXPECT_EQ(told("start.bmp", "BM"), "it is no bitmap or metafile");
  EXPECT_EQ(told("cut.bmp", Sound.File().first(20)), "the bitmap is damaged, too large or unusual");
  EXPECT_EQ(told("missing.bmp"), "no such file or directory");
  EXPECT_EQ(told("."), "it is a folder");
  for (const char* name : {"map.wmf", "map.bmp"}) {
    ASSERT_TRUE(QFile::resize(Folder.filePath(name), qint64{metafile::MaxMetafileBytes} + 1));
  }
  EXPECT_EQ(told("map.wmf"), "4") << "a bitmap";
  EXPECT_EQ(told("map.bmp"), "it is too large for a metafile");
}

TEST_F(PictureFile, IsReadInBandsThatMeet) {
  constexpr int Width = 170;
  constexpr int Height = 4001;
  QByteArray rows;
  for (int y = 0; y < Height; ++y) {
    rows += Long(y) + QByteArray(Width * 4 - 8, '\x40') + Long(y);
  }
  for (const int height : {Height, -Height}) {
    for (const int cut : {0, Height / 3}) {
      Write("map.bmp", DibBytes{Width, height, 32, 0, {}, rows}.File().chopped(cut * Width * 4));
      const forms::Picture picture = LoadFile("map.bmp").value();
      ASSERT_TRUE(picture);
      for (int y = 0; y < Height; ++y) {
        const int stored = height < 0 ? y : Height - 1 - y;
        const std::uint32_t ends =
            Black + static_cast<std::uint32_t>(stored < Height - cut ? stored : 0);
        ASSERT_EQ(picture->Pixels[picture->IndexOf(0, y)], ends) << y;
        ASSERT_EQ(picture->Pixels[picture->IndexOf(Width - 1, y)], ends) << y;
      }
    }
  }
}

TEST_F(PictureFile, CannotBeReadWhenItIsCutShortMeanwhile) {
  for (const DibBytes& dibBytes : Bitmaps) {
    const QByteArray bytes = dibBytes.File();
    Write("map.bmp", bytes);
    const auto file = files::RegularFile::Open(Path("map.bmp"));
    bitmap::FileBytes dib(*file, 14);
    const auto header = bitmap::ReadDibHeader(dib);
    EXPECT_NE(bitmap::DecodeDib(dib, *header, std::nullopt), nullptr);
    ASSERT_TRUE(QFile::resize(Folder.filePath("map.bmp"), bytes.size() - 1));
    EXPECT_EQ(bitmap::DecodeDib(dib, *header, std::nullopt), nullptr) << dibBytes.Bits;
  }
}

}  // namespace
}  // namespace terramark::pictures
