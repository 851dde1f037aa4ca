#include "hostilefiles.h"

#include <algorithm>
#include <random>

#include "support/picturebytes.h"

namespace terramark {
namespace {

using enum metafile::RecordKind;

/// Just below the limit of records in a metafile.
constexpr int MaxRecords = 999'000;

QByteArray Placed(const MetafileBytes& file) {
  return file.Placeable(0, 0, 1000, 1000);
}

/// Calls `add` so many times after the records of `file`.
template <typename Add>
QByteArray Many(int count, MetafileBytes file, const Add& add) {
  for (int i = 0; i < count; ++i) add(file, i);
  return Placed(file);
}

template <typename Add>
QByteArray Many(int count, const Add& add) {
  return Many(count, MetafileBytes(), add);
}

/// `count` stripes down and `count` across; each crosses all others.
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

/// Points inside the picture, or far beyond its right edge.
QByteArray RandomPoints(int count, int from = 0) {
  std::mt19937 random(1);
  QByteArray points;
  for (int i = 0; i < count; ++i) {
    points += Words({from + static_cast<int>(random() % 1000), static_cast<int>(random() % 1000)});
  }
  return points;
}

/// From the top of the picture to its bottom and back, time and again.
QByteArray ZigZag(int count) {
  QByteArray points;
  for (int i = 0; i < count; ++i) points += Words({i % 1000, i % 2 * 1000});
  return points;
}

QByteArray Font(int height, int turn = 0, int charset = 0) {
  return MetafileBytes()
      .Object(CreateFontIndirect, {height, 0, turn, turn, 400, 0, charset << 8, 0, 0}, "Arial")
      .Records();
}

/// Letters from the middle of the left edge.
void Write(MetafileBytes& file, const QByteArray& text) {
  file.Record(TextOut, {static_cast<int>(text.size())},
              text + QByteArray(text.size() % 2, ' ') + Words({500, 0}));
}

/// A bitmap whose every row is coded in the longest runs.
QByteArray RunLengths(int side) {
  constexpr int LongestRun = 255;
  QByteArray row;
  for (int left = side; left > 0; left -= LongestRun) {
    row.append(static_cast<char>(std::min(left, LongestRun))).append('\1');
  }
  row.append(2, '\0');
  return DibBytes{side, side, 8, 1, {0, 0xFFFFFF}, row.repeated(side)}.Packed();
}

void AddText(std::vector<HostileFile>& files) {
  const auto write = [](auto& file, const char* text) { Write(file, text); };
  files.push_back({"fonts that write nothing", Many(MaxRecords / 3, [&](auto& file, int i) {
                     file.Raw(Font(-1 - i % 3000));
                     write(file, "");
                   })});
  files.push_back({"fonts that write a letter", Many(20000, [&](auto& file, int i) {
                     file.Raw(Font(-1 - i % 3000));
                     write(file, "A");
                   })});
  files.push_back(
      {"letters as high as the picture", Many(20000, MetafileBytes().Raw(Font(-1000)),
                                              [&](auto& file, int) { write(file, "@@@@"); })});
  files.push_back({"letters much larger than the picture",
                   Many(20000, MetafileBytes().Raw(Font(-30000)),
                        [&](auto& file, int) { write(file, "@@@@"); })});
  files.push_back({"turned letters", Many(20000, [&](auto& file, int i) {
                     file.Raw(Font(-60, i % 3600));
                     write(file, "ABCD@");
                   })});
  files.push_back({"texts over each other",
                   Many(MaxRecords / 2, MetafileBytes().Raw(Font(-20)), [&](auto& file, int) {
                     write(file, "as many letters as there are in a line");
                   })});
  files.push_back({"many different letters of another script",
                   Many(30000, MetafileBytes().Raw(Font(-20, 0, 128)), [&](auto& file, int i) {
                     Write(file, QByteArray(1, static_cast<char>(0x81 + i % 31)) +
                                     QByteArray(1, static_cast<char>(0x40 + i / 31 % 60)));
                   })});
}

void AddBitmaps(std::vector<HostileFile>& files) {
  const QByteArray thin = DibBytes{16384, 1, 1, 0, {0, 0xFFFFFF}, QByteArray(2048, 'U')}.Packed();
  const QByteArray large = RunLengths(8192);
  files.push_back(
      {"a long row of pixels, for each row of the target", Many(5000, [&](auto& file, int) {
         file.Record(StretchDib, {0x20, 0xCC, 0, 1, 16384, 0, 0, 1000, 2, 0, 20}, thin);
       })});
  files.push_back(
      {"a large bitmap, in runs", Many(20, [&](auto& file, int) {
         file.Record(StretchDib, {0x20, 0xCC, 0, 8192, 8192, 0, 0, 1000, 1000, 0, 0}, large);
       })});
  files.push_back({"a large bitmap, for a pixel", Many(50, [&](auto& file, int) {
                     file.Record(StretchDib, {0x20, 0xCC, 0, 8192, 8192, 0, 0, 2, 2, 0, 0}, large);
                   })});
  files.push_back({"brushes of large bitmaps", Many(100, [&](auto& file, int) {
                     file.Record(DibCreatePatternBrush, {5, 0}, large);
                   })});
  files.push_back({"an old bitmap of more pixels than any may have", Many(1, [](auto& file, int) {
                     file.Record(BitBlt,
                                 {0, 0xCC, 0, 0, 100, 100, 0, 0, 0, 32000, 16000, 4000, 0x0101},
                                 QByteArray(64'000'000, 'U'));
                   })});
  files.push_back({"brushes over the picture, combined",
                   Many(MaxRecords, MetafileBytes().Brush(2, 0x1234, 5), [](auto& file, int) {
                     file.Record(PatBlt, {0x49, 0x5A, 1000, 1000, 0, 0});
                   })});
}

void AddShapes(std::vector<HostileFile>& files) {
  const QByteArray points = RandomPoints(8000);
  const QByteArray unseen = RandomPoints(8000, 20000);
  const auto polyline = [](const QByteArray& of) {
    return [of](auto& file, int) { file.Record(Polyline, {8000}, of); };
  };
  files.push_back({"polygons of many edges",
                   Many(100, [&](auto& file, int) { file.Record(Polygon, {8000}, points); })});
  files.push_back({"polygons that zigzag", Many(20, [&](auto& file, int) {
                     file.Record(Polygon, {16000}, ZigZag(16000));
                   })});
  files.push_back({"a polygon with as many points as a record may have",
                   Many(1, [](auto& file, int) { file.Record(Polygon, {65535}, ZigZag(65535)); })});
  files.push_back({"lines", Many(300, polyline(points))});
  files.push_back({"dashed lines", Many(300, MetafileBytes().Pen(2, 0, 0), polyline(points))});
  files.push_back({"wide lines", Many(100, MetafileBytes().Pen(0, 30, 0), polyline(points))});
  files.push_back(
      {"wide lines out of sight", Many(500, MetafileBytes().Pen(0, 30, 0), polyline(unseen))});
  files.push_back({"ellipses out of sight, their pen too wide",
                   Many(500, MetafileBytes().Pen(0, 1000, 0), [](auto& file, int) {
                     file.Record(Ellipse, {3000, 30000, -30000, 1500});
                   })});
  files.push_back({"ellipses in sight, their pen too wide",
                   Many(500, MetafileBytes().Pen(0, 1000, 0), [](auto& file, int) {
                     file.Record(Ellipse, {1000, 1000, 0, 0});
                   })});
  files.push_back({"arcs beyond the picture", Many(MaxRecords, [](auto& file, int) {
                     file.Record(Arc, {0, 30000, 30000, 0, 30000, 30000, -30000, -30000});
                   })});
  files.push_back({"rectangles over the picture",
                   Many(MaxRecords, [](auto& file, int) { file.Rectangle(0, 0, 1001, 1001); })});
  files.push_back({"hatched rectangles, combined",
                   Many(MaxRecords, MetafileBytes().Brush(2, 0x1234, 5).Record(SetRop2, {7}),
                        [](auto& file, int) { file.Rectangle(0, 0, 1000, 1000); })});
  files.push_back({"pixels", Many(MaxRecords, [](auto& file, int i) {
                     file.Record(SetPixel, {i, 0, i % 1000, i / 1000});
                   })});
  files.push_back({"floods", Many(99999, [](auto& file, int) {
                     file.Record(FloodFill, {0, 0, 9, 9});
                   })});
}

void AddClips(std::vector<HostileFile>& files) {
  files.push_back(
      {"frames of a region that crosses itself", Many(300, Stripes(499, 0), [](auto& file, int) {
         file.Record(FrameRegion, {0, 7, 2, 3});
       })});
  files.push_back({"regions out of sight", Many(99999, Stripes(499, 9000), [](auto& file, int) {
                     file.Record(PaintRegion, {0});
                   })});
  files.push_back({"clips out of sight", Many(99999, Stripes(8000, 9000), [](auto& file, int) {
                     file.Record(SelectObject, {0});
                   })});
  files.push_back({"clips that are saved", Many(5000, [](auto& file, int i) {
                     file.Record(SaveDC, {}).Record(ExcludeClipRect, {i, i, 0, 0});
                   })});
  files.push_back(
      {"clips that move", Many(MaxRecords / 2, [](auto& file, int i) {
         file.Record(ExcludeClipRect, {9, 9, 0, 0}).Record(OffsetClipRgn, {i % 2, i % 3});
       })});
}

void AddObjects(std::vector<HostileFile>& files) {
  const QByteArray entries(4 * 1024, 'x');
  const auto palette = MetafileBytes().Record(CreatePalette, {0x300, 1024}, entries);
  files.push_back({"a palette selected", Many(MaxRecords, palette, [](auto& file, int) {
                     file.Record(SelectPalette, {0});
                   })});
  files.push_back(
      {"a palette saved and changed", Many(MaxRecords / 4, palette, [](auto& file, int) {
         file.Record(SelectPalette, {0})
             .Record(SaveDC, {})
             .Record(SetPaletteEntries, {0, 1, 7, 7})
             .Record(RestoreDC, {-1});
       })});
  files.push_back({"palettes", Many(15000, [&](auto& file, int) {
                     file.Record(CreatePalette, {0x300, 1024}, entries);
                   })});
  files.push_back(
      {"the first of many objects, time and again", Many(MaxRecords / 2, [](auto& file, int i) {
         file.Record(CreateBrushIndirect, {0, 0, 0, 0});
         if (i > 66000) file.Record(DeleteObject, {i % 2 * 65535});
       })});
  files.push_back({"records that mean nothing",
                   Many(MaxRecords, [](auto& file, int) { file.Raw(Long(3) + Words({0x7777})); })});
}

}  // namespace

std::vector<HostileFile> HostileFiles() {
  std::vector<HostileFile> files;
  AddText(files);
  AddBitmaps(files);
  AddShapes(files);
  AddClips(files);
  AddObjects(files);
  return files;
}

}  // namespace terramark
