#include <gtest/gtest.h>

#include <QSet>
#include <cstdlib>

#include "picturebytes.h"
#include "qt/pictures/metafileplayer.h"
#include "qt/pictures/textdecoding.h"

namespace terramark::qt {
namespace {

constexpr QRgb White = 0xFFFFFFFF;
constexpr QRgb Black = 0xFF000000;
constexpr QRgb Red = 0xFFFF0000;
constexpr QRgb Green = 0xFF00FF00;
constexpr std::uint32_t RedRef = 0x0000FF;
constexpr std::uint32_t GreenRef = 0x00FF00;
constexpr int NullPen = 5;

QImage Play(const MetafileBytes& file, QSize size = {100, 100}) {
  return PlayMetafile(file.Placeable(0, 0, 100, 100), size);
}

int Count(const QImage& image, QRgb colour) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == colour ? 1 : 0;
  }
  return count;
}

QSet<QRgb> Colours(const QImage& image) {
  QSet<QRgb> colours;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) colours.insert(image.pixel(x, y));
  }
  return colours;
}

// Walks the four ways from `seed` over its colour; a gap in a border lets it out to the edge.
bool FloodReachesEdge(QImage image, QPoint seed) {
  const QRgb ground = image.pixel(seed);
  std::vector<QPoint> pending{seed};
  while (!pending.empty()) {
    const QPoint at = pending.back();
    pending.pop_back();
    if (!image.valid(at)) return true;
    if (image.pixel(at) != ground) continue;
    image.setPixel(at, ~ground);
    for (const QPoint step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
      pending.push_back(at + step);
    }
  }
  return false;
}

TEST(Metafile, BordersAreBlackAndUnbroken) {
  for (const int width : {0, 1, 40}) {
    MetafileBytes file;
    file.Pen(0, width, 0).Brush(0, GreenRef);
    file.Record(0x0324,
                {7, 350, 150, 2800, 470, 3900, 2100, 2100, 1700, 2950, 3800, 900, 3500, 120, 1900});
    const QImage image = PlayMetafile(file.Placeable(0, 0, 4000, 4000), {546, 308});
    EXPECT_EQ(Colours(image), QSet<QRgb>({White, Black, Green})) << "grey edges at pen " << width;
    EXPECT_FALSE(FloodReachesEdge(image, {200, 80})) << "a gap at pen " << width;
    EXPECT_FALSE(FloodReachesEdge(image, {300, 70})) << "a gap at pen " << width;
  }
}

TEST(Metafile, TextHasNoGreyEdges) {
  MetafileBytes file;
  file.Record(0x02FB, {-40, 0, 200, 0, 400, 0, 0, 0, 0}, "Arial").Record(0x012D, {0});
  file.Record(0x0102, {1}).Record(0x0521, {4}, QByteArray("Ober") + QByteArray("\x14\0\x05\0", 4));
  EXPECT_EQ(Colours(Play(file, {300, 300})), QSet<QRgb>({White, Black}));
}

TEST(Metafile, TextIsReadInTheCharacterSetOfItsFont) {
  struct Row {
    int Charset;
    const char* Bytes;
    QString Letters;
  };
  const Row rows[] = {
      {0, "\xE4\x80", QStringLiteral(u"\u00E4\u20AC")},  // Western
      {161, "\xE1", QStringLiteral(u"\u03B1")},          // Greek
      {204, "\xC6", QStringLiteral(u"\u0416")},          // Cyrillic
      {128, "A\x83\x41\xB1",
       QStringLiteral(u"A\u30A2\uFF71")},        // Japanese, one or two bytes a letter
      {2, "a", QStringLiteral(u"\uF061")},       // signs
      {204, "\x98", QStringLiteral(u"\uFFFD")},  // not assigned
  };
  for (const Row& row : rows) {
    Font font;
    font.Charset = row.Charset;
    QString text;
    int bytes = 0;
    for (const Letter& letter : DecodeText(row.Bytes, font)) {
      text += letter.Text;
      bytes += letter.Bytes;
    }
    EXPECT_EQ(text, row.Letters) << row.Charset;
    EXPECT_EQ(bytes, qstrlen(row.Bytes)) << row.Charset;
  }
}

// The box around everything that is not white.
QRect Inked(const QImage& image) {
  QRect inked;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) != White) inked |= QRect(x, y, 1, 1);
    }
  }
  return inked;
}

TEST(Metafile, TextStandsWhereItsAlignmentPutsIt) {
  const auto inked = [](int align, int escapement) {
    MetafileBytes file;
    file.Record(0x02FB, {-20, 0, escapement, 0, 400, 0, 0, 0, 0}, "Arial").Record(0x012D, {0});
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

TEST(Metafile, FillsBothAxesOfTheBox) {
  MetafileBytes corners;
  corners.Pen(NullPen, 0, 0).Brush(0, RedRef).Rectangle(100, 50, 3000, 1050);
  const auto filled = [](const QImage& image) {
    return image.pixel(1, 1) == Red && image.pixel(118, 1) == Red && image.pixel(1, 38) == Red;
  };
  EXPECT_TRUE(filled(PlayMetafile(corners.Placeable(100, 50, 3000, 1050), {121, 41})));
  EXPECT_TRUE(filled(PlayMetafile(corners.Plain(), {121, 41}))) << "bounds from what is drawn";

  MetafileBytes window;
  window.Record(0x020B, {50, 100}).Record(0x020C, {1000, 2900});
  window.Pen(NullPen, 0, 0).Brush(0, RedRef).Rectangle(100, 50, 3000, 1050);
  EXPECT_TRUE(filled(PlayMetafile(window.Plain(), {121, 41}))) << "bounds from the window";
}

TEST(Metafile, MetricModesPointUpWhereNothingSaysMore) {
  MetafileBytes file;
  file.Record(0x0103, {2}).Pen(NullPen, 0, 0).Brush(0, RedRef).Rectangle(0, 0, 200, 100);
  file.Brush(0, GreenRef).Rectangle(0, 100, 200, 200);
  const QImage image = PlayMetafile(file.Plain(), {50, 50});
  EXPECT_EQ(image.pixel(25, 10), Green);
  EXPECT_EQ(image.pixel(25, 40), Red);
}

TEST(Metafile, ShapesLeaveOutTheirRightAndBottomEdge) {
  MetafileBytes rectangle;
  rectangle.Rectangle(10, 10, 20, 20);
  EXPECT_EQ(Play(rectangle).pixel(19, 19), Black);
  EXPECT_EQ(Play(rectangle).pixel(20, 19), White);
  MetafileBytes ellipse;
  ellipse.Brush(0, RedRef).Record(0x0418, {90, 90, 10, 10});
  const QImage round = Play(ellipse);
  EXPECT_EQ(round.pixel(10, 50), Black);
  EXPECT_EQ(round.pixel(89, 50), Black);
  EXPECT_EQ(round.pixel(90, 50), White);
  EXPECT_EQ(round.pixel(50, 50), Red);
  EXPECT_EQ(round, round.mirrored(true, true)) << "not symmetric";
  MetafileBytes line;
  line.Line(10, 10, 20, 10);
  EXPECT_EQ(Count(Play(line), Black), 10) << "the last pixel belongs to the next line";
}

TEST(Metafile, PolygonsFillByTheirMode) {
  // One square inside the other, turning the same way.
  const auto file = [](int mode) {
    MetafileBytes bytes;
    bytes.Pen(NullPen, 0, 0).Brush(0, RedRef).Record(0x0106, {mode});
    bytes.Record(0x0538, {2, 4, 4, 10, 10, 90, 10, 90, 90, 10, 90, 30, 30, 70, 30, 70, 70, 30, 70});
    return Play(bytes);
  };
  EXPECT_EQ(file(1).pixel(50, 50), White);
  EXPECT_EQ(file(2).pixel(50, 50), Red);
  EXPECT_EQ(Count(file(2), Red), 80 * 80);
}

TEST(Metafile, RasterOperationsCombineWithThePicture) {
  MetafileBytes twice;
  twice.Pen(NullPen, 0, 0).Brush(0, 0xFFFFFF).Record(0x0104, {7});
  twice.Rectangle(0, 0, 50, 50);
  EXPECT_EQ(Play(twice).pixel(20, 20), Black);
  twice.Rectangle(0, 0, 50, 50);
  EXPECT_EQ(Play(twice).pixel(20, 20), White) << "inverting twice gives back the picture";
  MetafileBytes crossing;
  crossing.Pen(0, 10, 0xFFFFFF).Record(0x0104, {7});
  crossing.Record(0x0325, {4, 10, 50, 90, 50, 90, 10, 50, 90});
  EXPECT_EQ(Play(crossing).pixel(89, 50), Black) << "a wide line inverted its own joint back";
}

TEST(Metafile, ClipsAreSavedAndRestored) {
  MetafileBytes file;
  file.Pen(NullPen, 0, 0).Brush(0, RedRef);
  file.Record(0x001E, {}).Record(0x0416, {50, 50, 10, 10}).Record(0x0415, {40, 40, 20, 20});
  file.Record(0x0209, {0, 0}).Rectangle(0, 0, 100, 100);
  const QImage clipped = Play(file);
  EXPECT_EQ(Count(clipped, Red), 40 * 40 - 20 * 20);
  file.Record(0x0127, {-1}).Rectangle(0, 0, 101, 101);
  EXPECT_EQ(Count(Play(file), Red), 100 * 100);
}

TEST(Metafile, DeletedNumbersAreUsedAgain) {
  MetafileBytes file;
  file.Pen(NullPen, 0, 0).Brush(0, RedRef).Record(0x01F0, {1});
  file.Record(0x02FC, {0, 0xFF00, 0, 0});
  file.Rectangle(0, 0, 50, 100).Record(0x012D, {1}).Rectangle(50, 0, 100, 100);
  const QImage image = Play(file);
  EXPECT_EQ(image.pixel(20, 20), Red) << "a deleted brush stays selected";
  EXPECT_EQ(image.pixel(70, 20), Green);
}

TEST(Metafile, HatchesAndBlitsPaint) {
  MetafileBytes hatch;
  hatch.Pen(NullPen, 0, 0).Brush(2, RedRef, 0).Record(0x0102, {1}).Rectangle(0, 0, 81, 81);
  EXPECT_EQ(Count(Play(hatch), Red), 80 * 10) << "one line in eight rows";

  const QByteArray dib =
      DibBytes{2, 2, 24, 0, {}, QByteArray::fromHex("00ff0000ff0000000000ff0000ff0000")}.Packed();
  MetafileBytes blit;
  blit.Record(0x0F43, {0x20, 0xCC, 0, 2, 2, 0, 0, 60, 60, 20, 20}, dib);
  const QImage stretched = Play(blit);
  EXPECT_EQ(stretched.pixel(21, 21), Red) << "the first stored row is the lowest";
  EXPECT_EQ(stretched.pixel(78, 78), Green);
  EXPECT_EQ(Count(stretched, Red), 60 * 30);
  MetafileBytes unscaled;
  unscaled.Record(0x0D33, {0, 2, 0, 0, 0, 2, 2, 30, 40}, dib);
  EXPECT_EQ(Inked(Play(unscaled, {200, 200})), QRect(80, 60, 2, 2)) << "its size is in pixels";
  MetafileBytes mirrored;
  mirrored.Record(0x0B41, {0x20, 0xCC, 2, 2, 0, 0, -60, 60, 80, 20}, dib);
  EXPECT_EQ(Play(mirrored).pixel(21, 21), Green);
  MetafileBytes masked;
  masked.Record(0x0940, {0xC6, 0x88, 0, 0, 2, 2, 10, 10}, dib);
  EXPECT_EQ(Play(masked).pixel(10, 10), Red) << "white and the picture";
  MetafileBytes tiled;
  tiled.Pen(NullPen, 0, 0).Record(0x0142, {5, 0}, dib).Record(0x012D, {1});
  EXPECT_EQ(Count(Play(tiled.Rectangle(0, 0, 101, 101)), Red), 50 * 100);
  MetafileBytes shrunk;
  shrunk.Record(0x0F43, {0x20, 0xCC, 0, 2, 2, 0, 0, 1, 1, 20, 20}, dib);
  EXPECT_EQ(Play(shrunk).pixel(20, 20), Black)
      << "pixels that fall together are laid over each other";
  MetafileBytes invert;
  invert.Record(0x061D, {0x09, 0x55, 30, 30, 10, 10});
  EXPECT_EQ(Count(Play(invert), Black), 30 * 30);
}

TEST(Metafile, ArcsRunAgainstTheClock) {
  // From the right end of the box to its top: the upper right quarter.
  const auto arc = [](int function) {
    MetafileBytes file;
    file.Brush(0, RedRef).Record(function, {0, 50, 50, 100, 91, 91, 10, 10});
    return Play(file);
  };
  const QImage open = arc(0x0817);
  EXPECT_EQ(Count(open, Red), 0);
  EXPECT_EQ(open.pixel(51, 10), Black);
  EXPECT_TRUE(Inked(open).left() >= 49 && Inked(open).bottom() <= 51);
  const QImage pie = arc(0x081A);
  EXPECT_EQ(pie.pixel(60, 40), Red);
  EXPECT_EQ(pie.pixel(50, 30), Black) << "the way back to the centre";
  const QImage chord = arc(0x0830);
  EXPECT_EQ(chord.pixel(55, 45), White) << "the centre lies outside";
  EXPECT_EQ(chord.pixel(78, 25), Red);
}

TEST(Metafile, FloodsStopAtTheirBorder) {
  const auto flood = [](int function, std::initializer_list<int> words) {
    MetafileBytes file;
    file.Brush(1, 0).Rectangle(20, 20, 60, 60).Brush(0, RedRef);
    return Play(file.Record(function, words));
  };
  EXPECT_EQ(Count(flood(0x0419, {0, 0, 30, 30}), Red), 38 * 38) << "up to black";
  EXPECT_EQ(Count(flood(0x0548, {1, -1, 0xFF, 30, 30}), Red), 38 * 38) << "over white";
  EXPECT_EQ(Count(flood(0x0548, {1, 0, 0, 20, 20}), Red), 4 * 39) << "over black";
  EXPECT_EQ(Count(flood(0x0419, {0, 0, 200, 200}), Red), 0) << "from outside the picture";
}

TEST(Metafile, DashesShowTheBackgroundInTheirGaps) {
  const auto line = [](int style, int mode) {
    MetafileBytes file;
    file.Record(0x0201, {0x00FF, 0}).Record(0x0102, {mode}).Pen(style, 0, 0);
    return Play(file.Line(0, 10, 72, 10));
  };
  constexpr int Transparent = 1;
  EXPECT_EQ(Count(line(1, Transparent), Black), 54) << "18 on, 6 off";
  EXPECT_EQ(Count(line(1, Transparent), Red), 0);
  EXPECT_EQ(Count(line(1, 2), Red), 18);
  EXPECT_EQ(Count(line(2, Transparent), Black), 36);
  EXPECT_EQ(Count(line(NullPen, 2), White), 100 * 100);
}

TEST(Metafile, WidePensTakeTheirWidthFromTheMapping) {
  MetafileBytes file;
  file.Pen(0, 10, 0).Line(20, 50, 80, 50);
  const QRect inked = Inked(Play(file, {200, 100}));
  EXPECT_EQ(inked.height(), 20) << "by the scale across";
  EXPECT_EQ(inked.width(), 140) << "with a round end at both sides";
}

TEST(Metafile, ViewportAndPaletteAndJustificationAct) {
  MetafileBytes viewport;
  viewport.Record(0x020D, {30, 20}).Record(0x020E, {50, 50}).Pen(NullPen, 0, 0).Brush(0, RedRef);
  viewport.Rectangle(0, 0, 102, 102);
  EXPECT_EQ(Inked(Play(viewport)), QRect(20, 30, 50, 50));

  MetafileBytes indexed;
  indexed.Record(0x02FC, {0, 1, 0x0100, 0}).Record(0x012D, {0}).Record(0x02FA, {5, 0, 0, 0, 0});
  indexed.Record(0x012D, {1}).Record(0x00F7, {0x300, 2, 0, 0, 0x00FF, 0}).Record(0x0234, {2});
  EXPECT_EQ(Play(indexed.Rectangle(0, 0, 101, 101)).pixel(50, 50), Red)
      << "a brush's palette entry is looked up when it paints";

  const auto width = [](std::initializer_list<int> justification) {
    MetafileBytes file;
    file.Record(0x02FB, {-12, 0, 0, 0, 400, 0, 0, 0, 0}, "Arial").Record(0x012D, {0});
    file.Record(0x020A, justification).Record(0x0102, {1});
    return Inked(Play(file.Record(0x0521, {3, 0x2048, 0x48, 10, 10}))).width();
  };
  EXPECT_EQ(width({1, 9}), width({0, 0}) + 9);
}

TEST(Metafile, RegionsClipAndPaint) {
  const auto region = [](MetafileBytes& file) {
    // Two scans: 10 to 50 in rows 10 to 20, 10 to 30 in rows 20 to 40.
    file.Record(0x06FF, {0, 6,  0,  0,  0,  2, 2, 10, 10, 50, 40,  //
                         2, 10, 20, 10, 50, 2, 2, 20, 40, 10, 30, 2});
  };
  MetafileBytes painted;
  painted.Pen(NullPen, 0, 0).Brush(0, RedRef);
  region(painted);
  EXPECT_EQ(Count(Play(MetafileBytes(painted).Record(0x012B, {2})), Red), 40 * 10 + 20 * 20);
  EXPECT_EQ(Count(Play(MetafileBytes(painted).Record(0x012A, {2})), Black), 40 * 10 + 20 * 20);
  const QImage framed = Play(MetafileBytes(painted).Record(0x0429, {2, 1, 2, 3}));
  EXPECT_EQ(framed.pixel(11, 30), Red);
  EXPECT_EQ(framed.pixel(20, 19), White) << "no frame where the scans meet";
  MetafileBytes clipped = MetafileBytes(painted).Record(0x012C, {2});
  clipped.Rectangle(0, 0, 101, 101);
  EXPECT_EQ(Count(Play(clipped), Red), 40 * 10 + 20 * 20);
  clipped.Record(0x012C, {0}).Rectangle(0, 0, 101, 101);
  EXPECT_EQ(Count(Play(clipped), Red), 100 * 100) << "number 0 is a pen: the clip is off";
}

TEST(Metafile, PassesOverUnknownRecords) {
  MetafileBytes file;
  file.Record(0x7777, {1, 2, 3}).Record(0x0626, {15, 4, 0, 0}).Pen(NullPen, 0, 0).Brush(0, RedRef);
  EXPECT_EQ(Play(file.Rectangle(0, 0, 101, 101)).pixel(99, 99), Red);
}

TEST(Metafile, HostileRecordsEndThePictureOrAreLeftOut) {
  const auto start = [] {
    return MetafileBytes().Pen(NullPen, 0, 0).Brush(0, RedRef).Rectangle(0, 0, 101, 101);
  };
  const QByteArray tooLong("\xFF\xFF\xFF\x7F\x1B\x04", 6);
  const QByteArray tooShort("\x02\0\0\0\x1B\x04", 6);
  EXPECT_EQ(Play(start().Raw(tooLong)).pixel(50, 50), Red);
  EXPECT_EQ(Play(start().Raw(tooShort).Brush(0, GreenRef).Rectangle(0, 0, 50, 50)).pixel(9, 9), Red)
      << "nothing is played past a record that has no length";
  EXPECT_EQ(Play(start().Record(0x0324, {0x7FFF, 5})).pixel(50, 50), Red);
  EXPECT_EQ(Play(start().Record(0x0538, {-1, -1, -1})).pixel(50, 50), Red);
  EXPECT_EQ(Play(start().Record(0x020C, {0, 0}).Record(0x0410, {0, 0, 0, 0})).pixel(50, 50), Red);
  EXPECT_TRUE(PlayMetafile(MetafileBytes().Plain(), {10, 10}).isNull())
      << "nothing drawn, no frame";

  // Each of these would run for hours without a limit on the work.
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
}  // namespace terramark::qt
