#include <gtest/gtest.h>

#include <QSet>
#include <QTransform>
#include <cstdlib>

#include "picturebytes.h"
#include "qt/pictures/metafileplayer.h"

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
  EXPECT_EQ(round, round.mirrored(true, true).copy(-1 + 1, 0, 100, 100)) << "not symmetric";
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
  MetafileBytes invert;
  invert.Record(0x061D, {0x09, 0x55, 30, 30, 10, 10});
  EXPECT_EQ(Count(Play(invert), Black), 30 * 30);
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
