#include <gtest/gtest.h>

#include <QMap>
#include <tuple>

#include "pictures/metafileplayer.h"
#include "pictures/picturebytes.h"
#include "pictures/textdecoding.h"

namespace terramark::pictures {
namespace {

constexpr QRgb White = 0xFFFFFFFF;
constexpr QRgb Black = 0xFF000000;
constexpr QRgb Red = 0xFFFF0000;
constexpr QRgb Green = 0xFF00FF00;
constexpr int RedRef = 0x0000FF;
constexpr int GreenRef = 0x00FF00;
constexpr int NullPen = 5;

QImage Play(const MetafileBytes& file, QSize size = {100, 100}) {
  return PlayMetafile(file.Placeable(0, 0, 100, 100), size);
}

/// The pixels of a colour: how many, and the box around them.
struct Patch {
  int Count = 0;
  QRect Box;
};

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

/// The box around everything that is not white.
QRect Inked(const QImage& image) {
  QRect inked;
  for (const auto& [colour, patch] : Patches(image).asKeyValueRange()) {
    if (colour != White) inked |= patch.Box;
  }
  return inked;
}

TEST(Metafile, BordersAreBlackAndUnbroken) {
  for (const int width : {0, 1, 40}) {
    MetafileBytes file = MetafileBytes()
                             .Pen(0, width, 0)
                             .Record(0x0324, {7, 350, 150, 2800, 470, 3900, 2100, 2100, 1700, 2950,
                                              3800, 900, 3500, 120, 1900});
    file.Brush(0, RedRef).Record(0x0419, {0, 0, 1040, 1465});
    const QImage image = PlayMetafile(file.Placeable(0, 0, 4000, 4000), {546, 308});
    // Without a gap the flood leaves all that is outside as it was.
    EXPECT_EQ(Patches(image).keys(), QList({Black, Red, White})) << width;
    EXPECT_GT(Patches(image)[White].Count, 60000) << width;
  }
}

TEST(Metafile, TextHasNoGreyEdges) {
  MetafileBytes file;
  file.Object(0x02FB, {-40, 0, 200, 0, 400, 0, 0, 0, 0}, "Arial");
  file.Record(0x0102, {1}).Record(0x0521, {4}, QByteArray("Ober") + QByteArray("\x14\0\x05\0", 4));
  EXPECT_EQ(Patches(Play(file, {300, 300})).keys(), QList({Black, White}));
}

TEST(Metafile, TextIsReadInTheCharacterSetOfItsFont) {
  const std::tuple<int, const char*, const char16_t*> rows[]{
      {0, "\xE4\x80", u"\u00E4\u20AC"},          // Western
      {161, "\xE1", u"\u03B1"},                  // Greek
      {204, "\xC6", u"\u0416"},                  // Cyrillic
      {128, "A\x83\x41\xB1", u"A\u30A2\uFF71"},  // Japanese, one or two bytes a letter
      {2, "a", u"\uF061"},                       // signs
      {204, "\x98", u"\uFFFD"},                  // not assigned
  };
  for (const auto& [charset, coded, letters] : rows) {
    Font font;
    font.Charset = charset;
    QString text;
    int bytes = 0;
    for (const Letter& letter : DecodeText(coded, font)) {
      text += letter.Text;
      bytes += letter.Bytes;
    }
    EXPECT_EQ(text, letters) << charset;
    EXPECT_EQ(bytes, qstrlen(coded)) << charset;
  }
}

TEST(Metafile, TextStandsWhereItsAlignmentPutsIt) {
  const auto inked = [](int align, int escapement) {
    MetafileBytes file;
    file.Object(0x02FB, {-20, 0, escapement, 0, 400, 0, 0, 0, 0}, "Arial");
    file.Record(0x012E, {align}).Record(0x0102, {1});
    // "HH", with 15 from letter to letter.
    return Inked(Play(file.Record(0x0A32, {50, 50, 2, 0, 0x4848, 15, 15})));
  };
  EXPECT_EQ(inked(24, 0).bottom(), 49) << "on the baseline";
  EXPECT_GT(inked(0, 0).top(), 50) << "below the reference";
  EXPECT_LT(inked(8, 0).bottom(), 49) << "above it";
  EXPECT_EQ(inked(24 | 2, 0).left() + 30, inked(24, 0).left()) << "to the left";
  EXPECT_EQ(inked(24 | 6, 0).left() + 15, inked(24, 0).left()) << "centred";
  const QRect upwards = inked(24, 900);
  EXPECT_LT(upwards.bottom(), 51) << "turned against the clock";
  EXPECT_GT(upwards.height(), upwards.width());
}

/// A file that has selected a brush and paints no outlines.
MetafileBytes Filled(int colour = RedRef) {
  return MetafileBytes().Pen(NullPen, 0, 0).Brush(0, colour);
}

TEST(Metafile, FillsBothAxesOfTheBox) {
  const auto rectangle = [](MetafileBytes file) {
    return file.Pen(NullPen, 0, 0).Brush(0, RedRef).Rectangle(100, 50, 3000, 1050);
  };
  const QByteArray files[]{
      rectangle({}).Placeable(100, 50, 3000, 1050),
      rectangle({}).Plain(),  // bounds from what is drawn, and from the window
      rectangle(MetafileBytes().Record(0x020B, {50, 100}).Record(0x020C, {1000, 2900})).Plain()};
  for (const QByteArray& file : files) {
    const QImage image = PlayMetafile(file, {121, 41});
    EXPECT_TRUE(image.pixel(1, 1) == Red && image.pixel(118, 1) == Red &&
                image.pixel(1, 38) == Red);
  }
}

TEST(Metafile, RecordsPaintTheirPixels) {
  // One square inside the other, turning the same way.
  const auto nested = [](int mode) {
    return Filled()
        .Record(0x0106, {mode})
        .Record(0x0538, {2, 4, 4, 10, 10, 90, 10, 90, 90, 10, 90, 30, 30, 70, 30, 70, 70, 30, 70});
  };
  const auto inverted = [] { return Filled(0xFFFFFF).Record(0x0104, {7}).Rectangle(0, 0, 50, 50); };
  // A square, and a smaller one left out of it.
  const auto clipped = [] {
    MetafileBytes file = Filled();
    file.Record(0x001E, {}).Record(0x0416, {50, 50, 10, 10}).Record(0x0415, {40, 40, 20, 20});
    return file.Record(0x0209, {0, 0}).Whole();
  };
  // Two red pixels above two green ones.
  const QByteArray dib =
      DibBytes{2, 2, 24, 0, {}, QByteArray::fromHex("00ff0000ff0000000000ff0000ff0000")}.Packed();
  // From the right end of the box to its top: the upper right quarter.
  const auto arc = [](int function) {
    return MetafileBytes().Brush(0, RedRef).Record(function, {0, 50, 50, 100, 91, 91, 10, 10});
  };
  const auto flood = [](int function, std::initializer_list<int> words) {
    MetafileBytes file;
    file.Brush(1, 0).Rectangle(20, 20, 60, 60).Brush(0, RedRef);
    return file.Record(function, words);
  };
  const auto dashes = [](int style, int mode) {
    MetafileBytes file;
    file.Record(0x0201, {0x00FF, 0}).Record(0x0102, {mode}).Pen(style, 0, 0);
    return file.Line(0, 10, 72, 10);
  };
  // Two scans: 10 to 50 in rows 10 to 20, 10 to 30 in rows 20 to 40.
  const auto region = [](int function, std::initializer_list<int> words) {
    return Filled()
        .Record(0x06FF, {0, 6,  0,  0,  0,  2, 2, 10, 10, 50, 40,  //
                         2, 10, 20, 10, 50, 2, 2, 20, 40, 10, 30, 2})
        .Record(function, words);
  };
  const auto whole = [] { return Filled().Whole(); };
  const Patch everywhere{100 * 100, {0, 0, 100, 100}};
  const Patch scans{40 * 10 + 20 * 20, {10, 10, 40, 30}};
  const struct {
    const char* What;
    QRgb Colour;
    Patch Painted;
    MetafileBytes File;
    QSize Size{100, 100};
  } cases[]{
      // clang-format off
      {"a rectangle lacks its right and bottom edge", Black, {36, {10, 10, 10, 10}},
       MetafileBytes().Rectangle(10, 10, 20, 20)},
      {"a line lacks its last pixel", Black, {10, {10, 10, 10, 1}},
       MetafileBytes().Line(10, 10, 20, 10)},
      {"an ellipse is filled", Red, {4792, {11, 11, 78, 78}},
       MetafileBytes().Brush(0, RedRef).Record(0x0418, {90, 90, 10, 10})},
      {"a wide pen by the scale across", Black, {2716, {30, 40, 140, 20}},
       MetafileBytes().Pen(0, 10, 0).Line(20, 50, 80, 50), {200, 100}},
      {"alternate polygons", Red, {80 * 80 - 40 * 40, {10, 10, 80, 80}}, nested(1)},
      {"winding polygons", Red, {80 * 80, {10, 10, 80, 80}}, nested(2)},
      {"inverted", Black, {49 * 49, {0, 0, 49, 49}}, inverted()},
      {"inverted twice", Black, {}, inverted().Rectangle(0, 0, 50, 50)},
      {"a wide line that crosses itself", Black, {1992, {5, 5, 90, 90}},
       MetafileBytes().Pen(0, 10, 0xFFFFFF).Record(0x0104, {7})
           .Record(0x0325, {4, 10, 50, 90, 50, 90, 10, 50, 90})},
      {"a clip", Red, {40 * 40 - 20 * 20, {10, 10, 40, 40}}, clipped()},
      {"no clip any more", Red, everywhere, clipped().Record(0x0127, {-1}).Whole()},
      {"a deleted brush that stays selected", Red, {49 * 99, {0, 0, 49, 99}},
       Filled().Record(0x01F0, {1}).Record(0x02FC, {0, 0xFF00, 0, 0}).Rectangle(0, 0, 50, 100)},
      {"its number used again", Green, {49 * 99, {50, 0, 49, 99}},
       Filled().Record(0x01F0, {1}).Record(0x02FC, {0, 0xFF00, 0, 0}).Record(0x012D, {1})
           .Rectangle(50, 0, 100, 100)},
      {"a hatch has one line in eight rows", Red, {80 * 10, {0, 3, 80, 73}},
       MetafileBytes().Pen(NullPen, 0, 0).Brush(2, RedRef).Record(0x0102, {1})
           .Rectangle(0, 0, 81, 81)},
      {"a pattern of a bitmap", Red, {100 * 50, {0, 0, 100, 99}},
       MetafileBytes().Pen(NullPen, 0, 0).Object(0x0142, {5, 0}, dib).Whole()},
      {"stretched, the first stored row lowest", Red, {60 * 30, {20, 20, 60, 30}},
       MetafileBytes().Record(0x0F43, {0x20, 0xCC, 0, 2, 2, 0, 0, 60, 60, 20, 20}, dib)},
      {"stretched and mirrored", Green, {60 * 30, {20, 20, 60, 30}},
       MetafileBytes().Record(0x0B41, {0x20, 0xCC, 2, 2, 0, 0, -60, 60, 80, 20}, dib)},
      {"laid over each other where they fall together", Black, {1, {20, 20, 1, 1}},
       MetafileBytes().Record(0x0F43, {0x20, 0xCC, 0, 2, 2, 0, 0, 1, 1, 20, 20}, dib)},
      {"its size in pixels", Red, {2, {80, 60, 2, 1}},
       MetafileBytes().Record(0x0D33, {0, 2, 0, 0, 0, 2, 2, 30, 40}, dib), {200, 200}},
      {"white and the picture", Red, {2, {10, 10, 2, 1}},
       MetafileBytes().Record(0x0940, {0xC6, 0x88, 0, 0, 2, 2, 10, 10}, dib)},
      {"a blit without a bitmap", Black, {30 * 30, {10, 10, 30, 30}},
       MetafileBytes().Record(0x061D, {0x09, 0x55, 30, 30, 10, 10})},
      {"an arc against the clock", Black, {58, {51, 10, 40, 41}}, arc(0x0817)},
      {"an open arc", Red, {}, arc(0x0817)},
      {"a pie", Red, {1189, {51, 11, 39, 39}}, arc(0x081A)},
      {"the sides of a pie", Black, {58 + 80, {50, 10, 41, 41}}, arc(0x081A)},
      {"a chord", Red, {409, {52, 11, 38, 38}}, arc(0x0830)},
      {"a flood up to black", Red, {38 * 38, {21, 21, 38, 38}}, flood(0x0419, {0, 0, 30, 30})},
      {"over white", Red, {38 * 38, {21, 21, 38, 38}}, flood(0x0548, {1, -1, 0xFF, 30, 30})},
      {"over black", Red, {4 * 39, {20, 20, 40, 40}}, flood(0x0548, {1, 0, 0, 20, 20})},
      {"from outside the picture", Red, {}, flood(0x0419, {0, 0, 200, 200})},
      {"dashes, 18 on and 6 off", Black, {54, {0, 10, 66, 1}}, dashes(1, 1)},
      {"nothing in their gaps", Red, {}, dashes(1, 1)},
      {"the background in their gaps", Red, {18, {18, 10, 54, 1}}, dashes(1, 2)},
      {"dots", Black, {36, {0, 10, 69, 1}}, dashes(2, 1)},
      {"no line at all", White, everywhere, dashes(NullPen, 2)},
      {"a viewport", Red, {2500, {20, 30, 50, 50}},
       Filled().Record(0x020D, {30, 20}).Record(0x020E, {50, 50}).Rectangle(0, 0, 102, 102)},
      {"a palette entry looked up when it paints", Red, everywhere,
       MetafileBytes().Object(0x02FC, {0, 1, 0x0100, 0}).Pen(NullPen, 0, 0)
           .Record(0x00F7, {0x300, 2, 0, 0, 0x00FF, 0}).Record(0x0234, {2}).Whole()},
      {"a region filled", Red, scans, region(0x012B, {2})},
      {"a region inverted", Black, scans, region(0x012A, {2})},
      {"no frame where its scans meet", Red, {310, {10, 10, 40, 30}}, region(0x0429, {2, 1, 2, 3})},
      {"a region as clip", Red, scans, region(0x012C, {2}).Whole()},
      {"number 0 is a pen: the clip is off", Red, everywhere,
       region(0x012C, {2}).Record(0x012C, {0}).Whole()},
      {"unknown records", Red, everywhere,
       Filled().Record(0x7777, {1, 2, 3}).Record(0x0626, {15, 4, 0, 0}).Whole()},
      {"a record without end", Red, everywhere,
       whole().Raw(Words({-1, 0x7FFF, 0x041B})).Brush(0, GreenRef).Whole()},
      {"a record without a length", Red, everywhere,
       whole().Raw(Words({2, 0, 0x041B})).Brush(0, GreenRef).Whole()},
      {"more points than there are", Red, everywhere, whole().Record(0x0324, {0x7FFF, 5})},
      {"fewer polygons than none", Red, everywhere, whole().Record(0x0538, {-1, -1, -1})},
      {"a window without a size", Red, everywhere,
       whole().Record(0x020C, {0, 0}).Record(0x0410, {0, 0, 0, 0})},
      // clang-format on
  };
  for (const auto& c : cases) {
    const Patch painted = Patches(Play(c.File, c.Size)).value(c.Colour);
    EXPECT_EQ(painted.Count, c.Painted.Count) << c.What;
    EXPECT_EQ(painted.Box, c.Painted.Box) << c.What;
  }
}

TEST(Metafile, MetricModesPointUpWhereNothingSaysMore) {
  MetafileBytes file = Filled().Record(0x0103, {2}).Rectangle(0, 0, 200, 100);
  file.Brush(0, GreenRef).Rectangle(0, 100, 200, 200);
  const QImage image = PlayMetafile(file.Plain(), {50, 50});
  EXPECT_EQ(image.pixel(25, 10), Green);
  EXPECT_EQ(image.pixel(25, 40), Red);
}

TEST(Metafile, EllipsesAreSymmetric) {
  const QImage image = Play(MetafileBytes().Record(0x0418, {90, 90, 10, 10}));
  EXPECT_EQ(Inked(image), QRect(10, 10, 80, 80));
  EXPECT_EQ(image, image.mirrored(true, true));
}

TEST(Metafile, JustificationWidensBlanks) {
  const auto width = [](std::initializer_list<int> justification) {
    MetafileBytes file;
    file.Object(0x02FB, {-12, 0, 0, 0, 400, 0, 0, 0, 0}, "Arial").Record(0x0102, {1});
    file.Record(0x020A, justification).Record(0x0521, {3, 0x2048, 0x48, 10, 10});
    return Inked(Play(file)).width();
  };
  EXPECT_EQ(width({1, 9}), width({0, 0}) + 9);
}

TEST(Metafile, HostileRecordsCostNoHours) {
  EXPECT_TRUE(PlayMetafile(MetafileBytes().Plain(), {10, 10}).isNull()) << "no bounds";
  MetafileBytes objects;
  MetafileBytes saves;
  MetafileBytes fills;
  objects.Rectangle(0, 0, 9, 9);
  for (int i = 0; i < 70000; ++i) objects.Record(0x02FC, {0, 0, 0, 0});
  for (int i = 0; i < 70000; ++i) objects.Record(0x01F0, {0}).Record(0x02FC, {0, 0, 0, 0});
  for (int i = 0; i < 5000; ++i) saves.Record(0x001E, {}).Record(0x0415, {i, i, 0, 0});
  for (int i = 0; i < 50000; ++i) fills.Record(0x0418, {32000, 32000, -32000, -32000});
  for (const MetafileBytes* file : {&objects, &saves, &fills}) {
    EXPECT_EQ(Play(*file, {400, 400}).size(), QSize(400, 400));
  }
}

}  // namespace
}  // namespace terramark::pictures
