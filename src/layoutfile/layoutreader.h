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

/// A hundred times what the largest map needs; of a longer file no more than this is read.
inline constexpr std::size_t MaxLayoutBytes = 4U << 20U;

/// Nothing, or where and why the reading has stopped.
using LayoutResult = tl::expected<void, LayoutFault>;

/// Reads in three steps, in this order, since the window shows what each has read. After one has
/// failed there is no other. A number is never outside the tables or above the file's own count.
class LayoutReader {
 public:
  /// The bytes must outlive it. What the file has no line for stays as in `start`.
  LayoutReader(std::string_view bytes, const Tables& start);

  /// The header, the counts and the picture's path, which a comma ends: what stands behind it is
  /// the first of the colours.
  LayoutResult ReadHead();
  LayoutResult ReadPlayerColours();
  /// The Regions with their Areas, and the places. The sections that are computed afresh at each
  /// save are passed over. The last line is not read.
  LayoutResult ReadMap();

  /// What has been read; after a fault what stood before it.
  const MapLayout& Layout() const { return layout_; }

  /// Fails where a place that has been read, though a later line replace it, leaves the range of a
  /// float on a screen of so many twips a pixel, above 0.
  LayoutResult CheckRange(float twipsX, float twipsY) const;

  // For those who judge the file.

  /// Whether, after ReadHead, a comma has ended the picture's path.
  bool PictureIsCut() const { return file_.BehindComma(); }
  /// Passes over what stands behind it, which the editor does not.
  void SkipPictureLine() { file_.Line(); }
  /// The lines, each once, on which a double quote has ended a text early and cost what stood
  /// behind it.
  std::vector<int> TruncatedLines() const;
  /// The line of the counts, of the picture, of an Area or a Region; 0 where there is none.
  int LineOfCounts() const { return LineOf(countsAt_); }
  int LineOfPicture() const { return LineOf(pictureAt_); }
  int LineOfArea(std::int16_t area) const { return LineOf(areaAt_(area)); }
  int LineOfRegion(std::int16_t region) const { return LineOf(regionAt_(region)); }
  /// The line of the first head that is not as the editor writes it, 0 for none, and how it does.
  /// The reading may be out of step then.
  int LineOfOddHeading() const { return LineOf(oddHeadingAt_); }
  const char* UsualHeading() const { return usualHeading_; }
  /// Whether the file ends where the reading stands.
  bool AtEnd() const { return file_.AtEnd(); }
  /// The line at which the reading stands.
  int Line() const { return file_.LineOf(file_.Offset()); }

 private:
  /// The largest distance of all places, and where its line begins.
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

  /// That this stands where the last read began is expected.
  tl::unexpected<LayoutFault> Expected(std::string what) const;
  int LineOf(std::size_t place) const { return place == 0 ? 0 : file_.LineOf(place); }

  FieldReader file_;
  MapLayout layout_;
  // Where their lines begin; 0, where the header is, for none.
  std::size_t countsAt_ = 0;
  std::size_t pictureAt_ = 0;
  Table<std::size_t> areaAt_;
  Table<std::size_t> regionAt_;
  std::size_t oddHeadingAt_ = 0;
  const char* usualHeading_ = nullptr;
  Farthest farthestLeft_;
  Farthest farthestTop_;
};

/// All of a layout, the rows without a line as on an empty map. It can be shown on a usual screen.
tl::expected<MapLayout, LayoutFault> ReadLayout(std::string_view bytes);

}  // namespace terramark
