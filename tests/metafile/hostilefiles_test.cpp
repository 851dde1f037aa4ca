#include <gtest/gtest.h>

#include <chrono>

#include "metafile/metafileplayer.h"
#include "support/picturebytes.h"

namespace terramark::metafile {
namespace {

using enum RecordKind;
using namespace std::chrono_literals;

/// From the top of the picture to its bottom and back, time and again.
QByteArray ZigZag(int count) {
  QByteArray points;
  for (int i = 0; i < count; ++i) points += Words({i, i % 2 * 100});
  return points;
}

/// Rows of one rectangle each, all of which cover the picture.
MetafileBytes Region() {
  QByteArray scans;
  for (int i = 0; i < 99; ++i) scans += Words({2, 0, 300, 0, 500, 2});
  return MetafileBytes().Record(CreateRegion, {0, 6, 0, 0, 0, 99, 2, 0, 0, 0, 0}, scans);
}

QByteArray Blank(int side) {
  return DibBytes{side, side, 8, 1, {0}, QByteArray(side * side / 512, '\xFF')}.Packed();
}

std::string Play(const MetafileBytes& file, std::chrono::nanoseconds time,
                 QSize size = {546, 308}) {
  const QByteArray bytes = file;
  const forms::LoadedPicture picture = PlayMetafile(*ReadMetafile(bytes), size, time);
  return picture ? "drawn" : picture.error();
}

// One small record each, so that it is the record and not the number of records that is refused.
TEST(HostileFiles, AreRefusedAsAWholeByTheLoopsOfEachRecord) {
  MetafileBytes line = MetafileBytes().Pen(0, 9, 0);
  MetafileBytes pixels = MetafileBytes().Record(SetStretchBltMode, {3});
  MetafileBytes text =
      MetafileBytes().Object(CreateFontIndirect, {-90, 0, 0, 0, 400, 0, 0, 0, 0}, "Arial");
  const std::pair<const char*, MetafileBytes> cases[]{
      {"polygon", MetafileBytes().Pen(5, 0, 0).Record(Polygon, {900}, ZigZag(900))},
      {"thin line", MetafileBytes().Record(Polyline, {900}, ZigZag(900))},
      {"wide line", line.Record(Polyline, {900}, ZigZag(900))},
      {"rectangle", MetafileBytes().Whole()},
      {"ellipse", MetafileBytes().Record(Ellipse, {9000, 9000, 0, 0})},
      {"flood", MetafileBytes().Record(FloodFill, {0, 0, 9, 9})},
      {"text", text.Record(TextOut, {2}, "@@" + Words({0, 0}))},
      {"region", Region().Record(PaintRegion, {0})},
      {"frame of it", Region().Record(FrameRegion, {0, 7, 2, 3})},
      {"clip", Region().Record(SelectObject, {0})},
      {"hole in the clip", MetafileBytes().Record(ExcludeClipRect, {99, 99, 0, 0})},
      {"brush", MetafileBytes().Record(DibCreatePatternBrush, {5, 0}, Blank(256))},
      {"blit", MetafileBytes().Record(PatBlt, {0x49, 0x5A, 99, 99, 0, 0})},
      {"bitmap", pixels.Record(StretchDib, {0x20, 0xCC, 0, 9, 9, 0, 0, 99, 99, 0, 0}, Blank(256))}};
  for (const auto& [what, file] : cases) {
    EXPECT_EQ(Play(file, 0ns), "it takes too much time or memory to draw") << what;
    EXPECT_EQ(Play(file, 1h), "drawn") << what;
  }
}

TEST(HostileFiles, AreRefusedBeforeTheyUseUpTheMemory) {
  MetafileBytes brushes;
  for (int i = 0; i < 3; ++i) brushes.Record(DibCreatePatternBrush, {5, 0}, Blank(4096));
  MetafileBytes clips;
  for (int i = 0; i < 24; ++i) clips.Record(SaveDC, {}).Record(ExcludeClipRect, {i, i, 0, 0});
  for (const MetafileBytes& file : {brushes, clips}) {
    EXPECT_EQ(Play(file, 1h, {4096, 4096}), "it takes too much time or memory to draw");
  }
  EXPECT_EQ(Play({}, 1h, {0, 9}), "nothing is drawn in it");
  const QByteArray bare = MetafileBytes().Plain();
  EXPECT_EQ(PlayMetafile(*ReadMetafile(bare), {10, 10}).error(), "nothing is drawn in it");
}

}  // namespace
}  // namespace terramark::metafile
