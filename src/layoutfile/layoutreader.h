// Reads the bytes of a Map Layout into a value.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

#include "document/maplayout.h"
#include "layoutfile/fieldreader.h"
#include "layoutfile/layoutfault.h"

namespace terramark {

/// A hundred times what the largest map needs; the rest of a longer file is not read.
inline constexpr std::size_t MaxLayoutBytes = 4U << 20U;

/// No value, or where and why the reading stopped.
using LayoutResult = tl::expected<void, LayoutFault>;

/// Reads in three steps, in this order, since the window shows what each has read. After a failed
/// step no other may follow. The number of an Area or a Region is never outside the tables or above
/// the file's own count.
class LayoutReader {
 public:
  /// The bytes must outlive the reader. What has no line in the file stays as in `start`.
  LayoutReader(std::string_view bytes, const Tables& start);

  /// The header, the counts and the picture's path. A comma ends the path, and what follows is read
  /// as the first colour.
  LayoutResult ReadHead();
  LayoutResult ReadPlayerColours();
  /// The Regions with their Areas, and the places. The sections that each save computes anew are
  /// skipped, and the last line is not read.
  LayoutResult ReadMap();

  /// What has been read; after a fault, what came before it.
  const MapLayout& Layout() const { return layout_; }

  /// Fails if a place that was read, even if a later line replaces it, is out of a float's range on
  /// a screen with so many twips per pixel, which are above 0.
  LayoutResult CheckRange(float twipsX, float twipsY) const;

  // For programs that check the file.

  /// After ReadHead: whether a comma has ended the picture's path.
  bool PictureIsCut() const { return file_.BehindComma(); }
  /// Skips the rest of the picture's line, which the editor does not.
  void SkipPictureLine() { file_.Line(); }
  /// The lines, each once, on which a double quote ended a text early, so that the rest of the text
  /// was lost.
  std::vector<int> TruncatedLines() const;
  /// The line of the counts, of the picture, of an Area or a Region; 0 where there is none.
  int LineOfCounts() const { return LineOf(countsAt_); }
  int LineOfPicture() const { return LineOf(pictureAt_); }
  int LineOfArea(std::int16_t area) const { return LineOf(areaAt_(area)); }
  int LineOfRegion(std::int16_t region) const { return LineOf(regionAt_(region)); }
  /// The line of the first heading that is not as the editor writes it, 0 for none, and the usual
  /// text of that heading. The lines may be misread from there on.
  int LineOfOddHeading() const { return LineOf(oddHeadingAt_); }
  const char* UsualHeading() const { return usualHeading_; }
  /// Whether all bytes have been read.
  bool AtEnd() const { return file_.AtEnd(); }
  /// The line of the next byte.
  int Line() const { return file_.LineOf(file_.Offset()); }

 private:
  /// The largest distance of all places, and the offset of its line.
  struct Farthest {
    float Distance = 0;
    std::size_t At = 0;

    void Include(float coordinate, std::size_t at);
  };

  LayoutResult ReadRegionGroups();
  LayoutResult ReadRegionGroup();
  LayoutResult ReadArea(std::int16_t region, const Components& rgb);
  LayoutResult SkipComputedSections();
  LayoutResult SkipBridges();
  LayoutResult SkipPairs(const char* pair, std::int16_t count);
  LayoutResult SkipHeading(const char* text);
  LayoutResult ReadPlaces();
  LayoutResult ReadPlaces(Table<MarkerRecord>& markers, std::int16_t lines, std::int16_t last,
                          const char* what);

  /// The fault that `what` was expected where the last read began.
  tl::unexpected<LayoutFault> Expected(std::string what) const;
  int LineOf(std::size_t place) const { return place == 0 ? 0 : file_.LineOf(place); }

  FieldReader file_;
  MapLayout layout_;
  // The offsets of their lines; 0, where the header is, for none.
  std::size_t countsAt_ = 0;
  std::size_t pictureAt_ = 0;
  Table<std::size_t> areaAt_;
  Table<std::size_t> regionAt_;
  std::size_t oddHeadingAt_ = 0;
  const char* usualHeading_ = nullptr;
  Farthest farthestLeft_;
  Farthest farthestTop_;
};

/// Reads a whole layout; rows without a line are as on an empty map. Its places can be shown on a
/// usual screen.
tl::expected<MapLayout, LayoutFault> ReadLayout(std::string_view bytes);

}  // namespace terramark
