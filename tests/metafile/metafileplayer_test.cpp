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
  const forms::Picture picture = read ? PlayMetafile(*read, size) : nullptr;
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

/// The box around what is black on white, and of no other colour.
QRect Inked(const QByteArray& file) {
  const QMap<QRgb, Patch> patches = Patches(Played(file, {100, 100}));
  EXPECT_EQ(patches.keys(), QList({Black, White}));
  return patches[Black].Box;
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

TEST(Metafile, TextStandsWhereItsSettingsPutIt) {
  const auto inked = [](std::initializer_list<int> font, RecordKind kind,
                        std::initializer_list<int> words, RecordKind text,
                        std::initializer_list<int> written) {
    MetafileBytes file;
    file.Object(CreateFontIndirect, font, "Arial").Record(SetBkMode, {1});
    return Inked(file.Record(kind, words).Record(text, written));
  };
  const auto aligned = [&](int align, int escapement) {
    // "HH", with 15 from letter to letter.
    return inked({-20, 0, escapement, 0, 400, 0, 0, 0, 0}, SetTextAlign, {align}, ExtTextOut,
                 {50, 50, 2, 0, 0x4848, 15, 15});
  };
  const auto lettered = [&](int height, std::initializer_list<int> written) {
    return inked({height, 0, 0, 0, 400, 0, 0, 0, 0}, SetTextColor, {0, 0}, ExtTextOut, written);
  };
  const auto justified = [&](std::initializer_list<int> justification) {
    return inked({-12, 0, 0, 0, 400, 0, 0, 0, 0}, SetTextJustification, justification, TextOut,
                 {3, 0x2048, 0x48, 10, 10});
  };
  const QRect letters = lettered(-12, {50, 38, 2, 0, 0x4848, 15, 15});
  EXPECT_EQ(lettered(14, {50, 38, 2, 0, 0x4848, 15, 15}), letters) << "13 would be a cell of 15";
  EXPECT_EQ(lettered(-12, {50, 20, 4, 0, 0x8101, 0x4848, 9, 9, 15, 15}), letters)
      << "room, and no box, for those that no font has";
  EXPECT_EQ(aligned(24, 0).bottom(), 49) << "on the baseline";
  EXPECT_GT(aligned(0, 0).top(), 50) << "below the reference";
  EXPECT_LT(aligned(8, 0).bottom(), 49) << "above it";
  EXPECT_EQ(aligned(24 | 2, 0).left() + 30, aligned(24, 0).left()) << "to the left";
  EXPECT_EQ(aligned(24 | 6, 0).left() + 15, aligned(24, 0).left()) << "centred";
  EXPECT_GT(aligned(24, 200).height(), aligned(24, 0).height()) << "aslant, without grey edges";
  const QRect upwards = aligned(24, 900);
  EXPECT_LT(upwards.bottom(), 51) << "turned against the clock";
  EXPECT_GT(upwards.height(), upwards.width());
  EXPECT_EQ(justified({1, 9}).width(), justified({0, 0}).width() + 9) << "wider blanks";
}

/// A file that has selected a brush and paints no outlines.
MetafileBytes Filled(int colour = RedRef) {
  return MetafileBytes().Pen(NullPen, 0, 0).Brush(0, colour);
}

TEST(Metafile, RecordsPaintTheirPixels) {
  // One square inside the other, turning the same way.
  const auto nested = [](int mode) {
    return Filled()
        .Record(SetPolyFillMode, {mode})
        .Record(PolyPolygon,
                {2, 4, 4, 10, 10, 90, 10, 90, 90, 10, 90, 30, 30, 70, 30, 70, 70, 30, 70});
  };
  const auto inverted = [] {
    return Filled(0xFFFFFF).Record(SetRop2, {7}).Rectangle(0, 0, 50, 50);
  };
  // A square, and a smaller one left out of it.
  const auto clipped = [] {
    MetafileBytes file = Filled();
    file.Record(SaveDC, {})
        .Record(IntersectClipRect, {50, 50, 10, 10})
        .Record(ExcludeClipRect, {40, 40, 20, 20});
    return file.Record(SetTextColor, {0, 0}).Whole();
  };
  // Two red pixels above two green ones.
  const QByteArray dib =
      DibBytes{2, 2, 24, 0, {}, QByteArray::fromHex("00ff0000ff0000000000ff0000ff0000")}.Packed();
  // From the right end of the box to its top: the upper right quarter.
  const auto arc = [](RecordKind kind) {
    return MetafileBytes().Brush(0, RedRef).Record(kind, {0, 50, 50, 100, 91, 91, 10, 10});
  };
  const auto flood = [](RecordKind kind, std::initializer_list<int> words) {
    MetafileBytes file;
    file.Brush(1, 0).Rectangle(20, 20, 60, 60).Brush(0, RedRef);
    return file.Record(kind, words);
  };
  const auto dashes = [](int style, int mode) {
    MetafileBytes file;
    file.Record(SetBkColor, {0x00FF, 0}).Record(SetBkMode, {mode}).Pen(style, 0, 0);
    return file.Line(0, 10, 72, 10);
  };
  // Two scans: 10 to 50 in rows 10 to 20, 10 to 30 in rows 20 to 40.
  const auto region = [](RecordKind kind, std::initializer_list<int> words) {
    return Filled()
        .Record(CreateRegion, {0, 6,  0,  0,  0,  2, 2, 10, 10, 50, 40,  //
                               2, 10, 20, 10, 50, 2, 2, 20, 40, 10, 30, 2})
        .Record(kind, words);
  };
  const auto replaced = [] {
    return Filled().Record(DeleteObject, {1}).Record(CreateBrushIndirect, {0, 0xFF00, 0, 0});
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
  const Patch scans{40 * 10 + 20 * 20, {10, 10, 40, 30}};
  const struct {
    const char* What;
    QRgb Colour;
    Patch Painted;
    QByteArray File;
    QSize Size{100, 100};
  } cases[]{
      // clang-format off
      {"a rectangle lacks its right and bottom edge", Black, {36, {10, 10, 10, 10}},
       MetafileBytes().Rectangle(10, 10, 20, 20)},
      {"a line lacks its last pixel", Black, {10, {10, 10, 10, 1}},
       MetafileBytes().Line(10, 10, 20, 10)},
      {"an ellipse is filled", Red, {4792, {11, 11, 78, 78}},
       MetafileBytes().Brush(0, RedRef).Record(Ellipse, {90, 90, 10, 10})},
      {"a wide pen by the scale across", Black, {2708, {30, 40, 140, 20}},
       MetafileBytes().Pen(0, 10, 0).Line(20, 50, 80, 50), {200, 100}},
      {"a pen as wide as two mapped points are apart", Black, {62 * 2, {19, 49, 62, 2}},
       MetafileBytes().Pen(0, 14, 0).Record(SetWindowOrg, {0, -4}).Line(196, 500, 796, 500)
           .Placeable(0, 0, 1000, 1000)},
      {"alternate polygons", Red, {80 * 80 - 40 * 40, {10, 10, 80, 80}}, nested(1)},
      {"winding polygons", Red, {80 * 80, {10, 10, 80, 80}}, nested(2)},
      {"inverted", Black, {49 * 49, {0, 0, 49, 49}}, inverted()},
      {"inverted twice", Black, {}, inverted().Rectangle(0, 0, 50, 50)},
      {"a wide line that crosses itself", Black, {1977, {5, 5, 90, 90}},
       MetafileBytes().Pen(0, 10, 0xFFFFFF).Record(SetRop2, {7})
           .Record(Polyline, {4, 10, 50, 90, 50, 90, 10, 50, 90})},
      {"a clip", Red, {40 * 40 - 20 * 20, {10, 10, 40, 40}}, clipped()},
      {"no clip any more", Red, everywhere, clipped().Record(RestoreDC, {-1}).Whole()},
      {"a deleted brush that stays selected", Red, {49 * 99, {0, 0, 49, 99}},
       replaced().Rectangle(0, 0, 50, 100)},
      {"its number used again", Green, {49 * 99, {50, 0, 49, 99}},
       replaced().Record(SelectObject, {1}).Rectangle(50, 0, 100, 100)},
      {"a hatch has one line in eight rows", Red, {80 * 10, {0, 3, 80, 73}},
       MetafileBytes().Pen(NullPen, 0, 0).Brush(2, RedRef).Record(SetBkMode, {1})
           .Rectangle(0, 0, 81, 81)},
      {"numbers behind the hatches are plain", Red, everywhere,
       MetafileBytes().Pen(NullPen, 0, 0).Brush(2, RedRef, 6).Whole()},
      {"a pattern that fails leaves the brush and takes a number", Red, everywhere,
       Filled().Object(DibCreatePatternBrush, {5, 0}, dib.first(44)).Whole().Brush(0, GreenRef)
           .Rectangle(0, 0, 50, 50).Record(SelectObject, {1}).Rectangle(0, 0, 50, 50)},
      {"a pattern of a bitmap", Red, {100 * 50, {0, 0, 100, 99}},
       MetafileBytes().Pen(NullPen, 0, 0).Object(DibCreatePatternBrush, {5, 0}, dib).Whole()},
      {"stretched, the first stored row lowest", Red, {60 * 30, {20, 20, 60, 30}},
       MetafileBytes().Record(StretchDib, {0x20, 0xCC, 0, 2, 2, 0, 0, 60, 60, 20, 20}, dib)},
      {"stretched and mirrored", Green, {60 * 30, {20, 20, 60, 30}},
       MetafileBytes().Record(DibStretchBlt, {0x20, 0xCC, 2, 2, 0, 0, -60, 60, 80, 20}, dib)},
      {"laid over each other where they fall together", Black, {1, {20, 20, 1, 1}},
       MetafileBytes().Record(StretchDib, {0x20, 0xCC, 0, 2, 2, 0, 0, 1, 1, 20, 20}, dib)},
      {"what is there beyond a bitmap's edge", Black, {9996, {0, 0, 100, 100}},
       MetafileBytes().Brush(0, 0).Whole().Record(DibBitBlt, {0x20, 0xCC, 0, 0, 9, 9, 10, 10}, dib)},
      {"its size in pixels", Red, {2, {80, 60, 2, 1}},
       MetafileBytes().Record(SetDibToDevice, {0, 2, 0, 0, 0, 2, 2, 30, 40}, dib), {200, 200}},
      {"white and the picture", Red, {2, {10, 10, 2, 1}},
       MetafileBytes().Record(DibBitBlt, {0xC6, 0x88, 0, 0, 2, 2, 10, 10}, dib)},
      {"a blit without a bitmap", Black, {30 * 30, {10, 10, 30, 30}},
       MetafileBytes().Record(PatBlt, {0x09, 0x55, 30, 30, 10, 10})},
      {"an arc against the clock", Black, {58, {51, 10, 40, 41}}, arc(Arc)},
      {"an open arc", Red, {}, arc(Arc)},
      {"a pie", Red, {1189, {51, 11, 39, 39}}, arc(Pie)},
      {"the sides of a pie", Black, {58 + 80, {50, 10, 41, 41}}, arc(Pie)},
      {"a chord", Red, {409, {52, 11, 38, 38}}, arc(Chord)},
      {"a flood up to black", Red, {38 * 38, {21, 21, 38, 38}}, flood(FloodFill, {0, 0, 30, 30})},
      {"over white", Red, {38 * 38, {21, 21, 38, 38}}, flood(ExtFloodFill, {1, -1, 0xFF, 30, 30})},
      {"over black", Red, {4 * 39, {20, 20, 40, 40}}, flood(ExtFloodFill, {1, 0, 0, 20, 20})},
      {"from outside the picture", Red, {}, flood(FloodFill, {0, 0, 200, 200})},
      {"dashes, 18 on and 6 off", Black, {54, {0, 10, 66, 1}}, dashes(1, 1)},
      {"nothing in their gaps", Red, {}, dashes(1, 1)},
      {"the background in their gaps", Red, {18, {18, 10, 54, 1}}, dashes(1, 2)},
      {"dots", Black, {36, {0, 10, 69, 1}}, dashes(2, 1)},
      {"no line at all", White, everywhere, dashes(NullPen, 2)},
      {"a viewport", Red, {2500, {20, 30, 50, 50}},
       Filled().Record(SetViewportOrg, {30, 20}).Record(SetViewportExt, {50, 50})
           .Rectangle(0, 0, 102, 102)},
      {"a palette entry looked up when it paints", Red, everywhere,
       MetafileBytes().Object(CreateBrushIndirect, {0, 1, 0x0100, 0}).Pen(NullPen, 0, 0)
           .Record(CreatePalette, {0x300, 2, 0, 0, 0x00FF, 0}).Record(SelectPalette, {2}).Whole()},
      {"a region filled", Red, scans, region(PaintRegion, {2})},
      {"a region inverted", Black, scans, region(InvertRegion, {2})},
      {"a region that lies about its edges", Red, {},
       Filled().Record(CreateRegion, {0, 6, 0, 0, 0, 1, 2, 0, 0, 0, 0, 2, 10, 20, 10, 50, 3})
           .Record(PaintRegion, {2})},
      {"no frame where its scans meet", Red, {310, {10, 10, 40, 30}},
       region(FrameRegion, {2, 1, 2, 3})},
      {"a region as clip", Red, scans, region(SelectClipRegion, {2}).Whole()},
      {"number 0 is a pen: the clip is off", Red, everywhere,
       region(SelectClipRegion, {2}).Record(SelectClipRegion, {0}).Whole()},
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

TEST(Metafile, EllipsesAreSymmetric) {
  const QByteArray file = MetafileBytes().Record(Ellipse, {90, 90, 10, 10});
  const QImage image = Played(file, {100, 100});
  EXPECT_EQ(Inked(file), QRect(10, 10, 80, 80));
  EXPECT_EQ(image, image.mirrored(true, true));
}

}  // namespace
}  // namespace terramark::metafile
