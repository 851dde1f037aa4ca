// The tables of the map document: Areas and Regions by number, 1 to the count.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace terramark {

/// Elements of every table, 0 to 99; two decimal digits name each of them.
inline constexpr std::size_t TableSize = 100;
/// The highest number that the tables hold.
inline constexpr std::int16_t LastNumber = TableSize - 1;
/// The commands add no Area and no Region from this count on.
inline constexpr std::int16_t CountLimit = 96;
/// A colour component that was never set; shows as full intensity.
inline constexpr std::int16_t UnsetComponent = 256;
/// Armies of a new Region.
inline constexpr std::int16_t NewArmies = 5;
/// The name of element 0 and of whatever lost its name.
inline constexpr char UnknownName[] = "*UNKNOWN*";

/// A fixed table. A number outside it is a mistake in the program and ends it: the exception is
/// never caught.
template <typename T>
class Table {
 public:
  T& operator()(std::int16_t number) { return elements_.at(static_cast<std::size_t>(number)); }
  const T& operator()(std::int16_t number) const {
    return elements_.at(static_cast<std::size_t>(number));
  }
  bool operator==(const Table&) const = default;

 private:
  std::array<T, TableSize> elements_{};
};

/// Red, green, blue, each 0 to 256; a layout can bring others.
inline constexpr std::int16_t ComponentCount = 3;
using Components = std::array<std::int16_t, ComponentCount>;
/// Player1, Player2, Player3, Neutral.
inline constexpr std::int16_t PlayerColours = 4;

struct Area {
  std::string Name;
  /// Two digits for the count, then two digits for each neighbour, in the order in which they were
  /// linked.
  std::string Links;
  /// Its first character is the code of the card symbol; further characters have no meaning.
  std::string Symbol;
  /// 0 for an Area in no Region.
  std::int16_t Region = 0;
  /// The marker's corner that is the fill point, 0 to 3: 1 for the right edge plus 2 for the bottom
  /// edge. Other codes, from a layout, are no corner.
  std::int16_t Corner = 0;

  bool operator==(const Area&) const = default;
};

struct Region {
  std::string Name;
  std::int16_t Armies = 0;
  Components RGB{};

  bool operator==(const Region&) const = default;
};

struct Tables {
  /// 0 to 96 by the commands, to 99 from a layout.
  std::int16_t AreaCount = 0;
  std::int16_t RegionCount = 0;

  Table<Area> Areas;
  Table<Region> Regions;

  std::array<Components, PlayerColours> PlayerRGB{};
  /// Path of the backdrop as the file dialog or the layout gave it; empty for none.
  std::string PictureFile;

  bool operator==(const Tables&) const = default;

  // Access to single fields of a row.
  std::string& AreaName(std::int16_t i) { return Areas(i).Name; }
  std::string& AreaLinks(std::int16_t i) { return Areas(i).Links; }
  std::string& AreaSymbol(std::int16_t i) { return Areas(i).Symbol; }
  std::int16_t& AreaRegion(std::int16_t i) { return Areas(i).Region; }
  std::int16_t& AreaCorner(std::int16_t i) { return Areas(i).Corner; }
  std::string& RegionName(std::int16_t r) { return Regions(r).Name; }
  std::int16_t& RegionArmies(std::int16_t r) { return Regions(r).Armies; }
  Components& RegionRGB(std::int16_t r) { return Regions(r).RGB; }
  const std::string& AreaName(std::int16_t i) const { return Areas(i).Name; }
  const std::string& AreaLinks(std::int16_t i) const { return Areas(i).Links; }
  const std::string& AreaSymbol(std::int16_t i) const { return Areas(i).Symbol; }
  std::int16_t AreaRegion(std::int16_t i) const { return Areas(i).Region; }
  std::int16_t AreaCorner(std::int16_t i) const { return Areas(i).Corner; }
  const std::string& RegionName(std::int16_t r) const { return Regions(r).Name; }
  std::int16_t RegionArmies(std::int16_t r) const { return Regions(r).Armies; }
  const Components& RegionRGB(std::int16_t r) const { return Regions(r).RGB; }
};

/// Sets rows 1 to 99 to those of an empty map, except for the fill corners, which stay; and the
/// colour of Region 0.
void ClearRows(Tables& tables);

/// The tables of an empty map.
Tables EmptyMap();

/// The number of a Region's Areas.
inline std::int16_t MemberCount(const Tables& tables, std::int16_t region) {
  std::int16_t members = 0;
  for (std::int16_t i = 1; i <= tables.AreaCount; ++i) {
    if (tables.AreaRegion(i) == region) ++members;
  }
  return members;
}

}  // namespace terramark
