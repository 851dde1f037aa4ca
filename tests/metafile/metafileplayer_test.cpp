#include <gtest/gtest.h>

#include <QImage>
#include <QMap>
#include <tuple>

#include "metafile/metafileplayer.h"
#include "metafile/textdecoding.h"
#include "support/picturebytes.h"

namespace terramark::metafile {
namespace {

using enum RecordKind;

constexpr int RedRef = 0x0000FF;
constexpr int GreenRef = 0x00FF00;
constexpr int NullPen = 5;

/// The pixels of a colour: how many, and the box around them.
struct Patch {
  int Count = 0;
  QRect Box;
};

QImage Played(const QByteArray& file, QSize size) {
  const auto read = ReadMetafile(file);
  const forms::Picture picture = read ? PlayMetafile(*read, size).value_or(nullptr) : nullptr;
  EXPECT_TRUE(picture);
  if (!picture) return {};
  return QImage(reinterpret_cast<const uchar*>(picture->Pixels.data()), picture->Width,
                picture->Height, QImage::Format_RGB32)
      .copy();
}

QMap<QRgb, Patch> Patches(const QImage& image) {
  QMap<QRgb, Patch> patches;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      Patch& patch = patches[image.pixel(x, y)];
      ++patch.Count;
      patch.Box |= QRect(x, y, 1, 1);
    }
  }
  return patches;
}

TEST(Metafile, TextIsReadInTheCharacterSetOfItsFont) {
  const std::tuple<int, const char*, const char16_t*> rows[]{
      {0, "\xE4\x80", u"\u00E4\u20AC"},                   // Western
      {161, "\xE1", u"\u03B1"},                           // Greek
      {204, "\xC6", u"\u0416"},                           // Cyrillic
      {128, "A\x83\x41\xB1", u"A\u30A2\uFF71"},           // Japanese, one or two bytes a letter
      {2, "a\xAE\xE6\x80", u"\u03B1\u2192\u239B\uFFFD"},  // symbols
      {204, "\x98", u"\uFFFD"},                           // not assigned
  };
  for (const auto& [charset, coded, letters] : rows) {
    Font font;
    font.Charset = charset;
    QString text;
    for (QByteArrayView left = coded; !left.isEmpty();) {
      const int bytes = FirstLetterBytes(left, font);
      text += DecodeLetter(left.first(bytes), font);
      left = left.sliced(bytes);
    }
    EXPECT_EQ(text, letters) << charset;
  }
}

/// A file that has selected a brush and paints no outlines.
MetafileBytes Filled(int colour = RedRef) {
  return MetafileBytes().Pen(NullPen, 0, 0).Brush(0, colour);
}

TEST(Metafile, RecordsPaintTheirPixels) {
  // Two red pixels above two green ones.
  const QByteArray dib =
      DibBytes{2, 2, 24, 0, {}, QByteArray::fromHex("00ff0000ff0000000000ff0000ff0000")}.Packed();
  const auto flood = [](RecordKind kind, std::initializer_list<int> words) {
    MetafileBytes file;
    file.Brush(1, 0).Rectangle(20, 20, 60, 60).Brush(0, RedRef);
    return file.Record(kind, words);
  };
  const auto whole = [] { return Filled().Whole(); };
  // A flood from outside comes through any gap in the line.
  const auto border = [](int width) {
    MetafileBytes file;
    file.Pen(0, width, 0)
        .Record(Polygon, {7, 350, 150, 2800, 470, 3900, 2100, 2100, 1700,  //
                          2950, 3800, 900, 3500, 120, 1900});
    file.Brush(0, RedRef).Record(FloodFill, {0, 0, 1040, 1465});
    return file.Placeable(0, 0, 4000, 4000);
  };
  const auto framed = [](MetafileBytes file = {}) {
    return file.Pen(NullPen, 0, 0).Brush(0, RedRef).Rectangle(100, 50, 3000, 1050);
  };
  const Patch everywhere{100 * 100, {0, 0, 100, 100}};
  const struct {
    const char* What;
    QRgb Colour;
    Patch Painted;
    QByteArray File;
    QSize Size{100, 100};
  } cases[]{
      // clang-format off
      {"a pen as wide as two mapped points are apart", Black, {62 * 2, {19, 49, 62, 2}},
       MetafileBytes().Pen(0, 14, 0).Record(SetWindowOrg, {0, -4}).Line(196, 500, 796, 500)
           .Placeable(0, 0, 1000, 1000)},
      {"a pattern that fails leaves the brush and takes a number", Red, everywhere,
       Filled().Object(DibCreatePatternBrush, {5, 0}, dib.first(44)).Whole().Brush(0, GreenRef)
           .Rectangle(0, 0, 50, 50).Record(SelectObject, {1}).Rectangle(0, 0, 50, 50)},
      {"from outside the picture", Red, {}, flood(FloodFill, {0, 0, 200, 200})},
      {"a region that lies about its edges", Red, {},
       Filled().Record(CreateRegion, {0, 6, 0, 0, 0, 1, 2, 0, 0, 0, 0, 2, 10, 20, 10, 50, 3})
           .Record(PaintRegion, {2})},
      {"unknown records", Red, everywhere,
       Filled().Record(RecordKind{0x7777}, {1, 2, 3}).Record(RecordKind{0x0626}, {15, 4, 0, 0})
           .Whole()},
      {"a record without end", Red, everywhere,
       whole().Raw(Words({-1, 0x7FFF, 0x041B})).Brush(0, GreenRef).Whole()},
      {"a record without a length", Red, everywhere,
       whole().Raw(Words({2, 0, 0x041B})).Brush(0, GreenRef).Whole()},
      {"more points than there are", Red, everywhere, whole().Record(Polygon, {0x7FFF, 5})},
      {"fewer polygons than none", Red, everywhere, whole().Record(PolyPolygon, {-1, -1, -1})},
      {"a window without a size", Red, everywhere,
       whole().Record(SetWindowExt, {0, 0}).Record(ScaleWindowExt, {0, 0, 0, 0})},
      {"a frame from the header", Red, {120 * 40, {0, 0, 120, 40}},
       framed().Placeable(100, 50, 3000, 1050), {121, 41}},
      {"from what is drawn", Red, {120 * 40, {0, 0, 120, 40}}, framed().Plain(), {121, 41}},
      {"from the window", Red, {120 * 40, {0, 0, 120, 40}},
       framed(MetafileBytes().Record(SetWindowOrg, {50, 100}).Record(SetWindowExt, {1000, 2900}))
           .Plain(), {121, 41}},
      {"metric modes point up where nothing says more", Red, {49 * 24, {0, 25, 49, 24}},
       Filled().Record(SetMapMode, {2}).Rectangle(0, 0, 200, 100).Brush(0, GreenRef)
           .Rectangle(0, 100, 200, 200).Plain(), {50, 50}},
      {"an unbroken border", Red, {86269, {17, 13, 514, 280}}, border(0), {546, 308}},
      {"of a wide pen", Red, {82848, {20, 15, 502, 275}}, border(40), {546, 308}},
      // clang-format on
  };
  for (const auto& c : cases) {
    const QMap<QRgb, Patch> patches = Patches(Played(c.File, c.Size));
    for (const QRgb colour : patches.keys()) {
      EXPECT_TRUE(QList({White, Black, Red, Green}).contains(colour)) << c.What;
    }
    const Patch painted = patches.value(c.Colour);
    EXPECT_EQ(painted.Count, c.Painted.Count) << c.What;
    EXPECT_EQ(painted.Box, c.Painted.Box) << c.What;
  }
}

}  // namespace
}  // namespace terramark::metafile
