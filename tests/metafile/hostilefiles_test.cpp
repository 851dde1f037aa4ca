#include <gtest/gtest.h>

#include <ctime>
#include <random>

#include "metafile/limits.h"
#include "metafile/metafileplayer.h"
#include "support/picturebytes.h"

namespace terramark::metafile {
namespace {

using enum RecordKind;

/// Two seconds of an optimised build; the sanitizers take up to five times that.
constexpr double MaxSeconds = 10;

/// A file of so many records.
template <typename Add>
QByteArray Many(int count, const Add& add, MetafileBytes file = {}) {
  for (int i = 0; i < count; ++i) add(file, i);
  return file.Placeable(0, 0, 1000, 1000);
}

/// Stripes down and stripes across, which cross in a quarter of a million places.
MetafileBytes Stripes(int count, int from) {
  QByteArray scans;
  for (int i = 0; i < count; ++i) {
    scans += Words({2, from, from + 1000, from + 2 * i, from + 2 * i + 1, 2});
  }
  for (int i = 0; i < count; ++i) {
    scans += Words({2, from + 2 * i, from + 2 * i + 1, from, from + 1000, 2});
  }
  return MetafileBytes().Record(CreateRegion, {0, 6, 0, 0, 0, 2 * count, 2, 0, 0, 0, 0}, scans);
}

QByteArray RandomPoints(int count) {
  std::mt19937 random(1);
  QByteArray points;
  for (int i = 0; i < 2 * count; ++i) points += Words({static_cast<int>(random() % 1000)});
  return points;
}

QByteArray FontOfHeight(int height, int text) {
  return MetafileBytes()
      .Object(CreateFontIndirect, {height, 0, 0, 0, 400, 0, 0, 0, 0}, "Arial")
      .Record(TextOut, {text, 0x4141, 9, 9})
      .Records();
}

TEST(HostileFiles, EndWithinTheirLimit) {
  const QByteArray thin = DibBytes{16384, 1, 1, 0, {0, 0xFFFFFF}, QByteArray(2048, 'U')}.Packed();
  const QByteArray points = RandomPoints(8000);
  const struct {
    const char* What;
    QByteArray File;
  } cases[]{
      // clang-format off
      {"frames of a region that crosses itself",
       Many(300, [](auto& file, int) { file.Record(FrameRegion, {0, 7, 2, 3}); }, Stripes(499, 0))},
      {"regions out of sight",
       Many(99999, [](auto& file, int) { file.Record(PaintRegion, {0}); }, Stripes(499, 9000))},
      {"clips out of sight",
       Many(99999, [](auto& file, int) { file.Record(SelectObject, {0}); }, Stripes(8000, 9000))},
      {"a long row of pixels read again for each row",
       Many(5000, [&](auto& file, int) {
         file.Record(StretchDib, {0x20, 0xCC, 0, 1, 16384, 0, 0, 1000, 2, 0, 20}, thin);
       })},
      {"fonts that write nothing",
       Many(20000, [](auto& file, int i) { file.Raw(FontOfHeight(-1 - i % 3000, 0)); })},
      {"fonts that write a letter",
       Many(20000, [](auto& file, int i) { file.Raw(FontOfHeight(-1 - i % 3000, 1)); })},
      {"an old bitmap of more pixels than any may have",
       Many(1, [](auto& file, int) {
         file.Record(BitBlt, {0, 0xCC, 0, 0, 100, 100, 0, 0, 0, 32000, 16000, 4000, 0x0101},
                     QByteArray(64'000'000, 'U'));
       })},
      {"polygons of many edges",
       Many(100, [&](auto& file, int) { file.Record(Polygon, {8000}, points); })},
      {"wide lines of many points",
       Many(100, [&](auto& file, int) { file.Record(Polyline, {8000}, points); },
            MetafileBytes().Pen(0, 30, 0))},
      {"objects", Many(70000, [](auto& file, int) {
         file.Record(CreateBrushIndirect, {0, 0, 0, 0}).Record(DeleteObject, {0});
       }, Stripes(9, 0))},
      {"copies of the clip", Many(5000, [](auto& file, int i) {
         file.Record(SaveDC, {}).Record(ExcludeClipRect, {i, i, 0, 0});
       })},
      {"floods", Many(99999, [](auto& file, int) { file.Record(FloodFill, {0, 0, 9, 9}); })},
      // clang-format on
  };
  for (const auto& [what, file] : cases) {
    const std::clock_t before = std::clock();
    EXPECT_NE(PlayMetafile(*ReadMetafile(file), {546, 308}), nullptr) << what;
    EXPECT_LT(static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC, MaxSeconds) << what;
  }
  const QByteArray bare = MetafileBytes().Plain();
  EXPECT_EQ(PlayMetafile(*ReadMetafile(bare), {10, 10}), nullptr) << "no bounds";
}

}  // namespace
}  // namespace terramark::metafile
