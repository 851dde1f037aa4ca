#include "layoutfile/layoutwriter.h"

#include <array>
#include <cstdio>

#include "document/cardsymbol.h"
#include "document/links.h"
#include "layoutfile/headings.h"
#include "layoutfile/layouttext.h"
#include "layoutfile/regionlinks.h"
#include "layoutfile/routes.h"

namespace terramark {

namespace {

std::string TimeStamp(const SavingTime& time) {
  std::array<char, 80> text;
  std::snprintf(text.data(), text.size(), "%02u-%02u-%04d %02d:%02d:%02d",
                static_cast<unsigned>(time.Day.month()), static_cast<unsigned>(time.Day.day()),
                static_cast<int>(time.Day.year()), static_cast<int>(time.Clock.hours().count()),
                static_cast<int>(time.Clock.minutes().count()),
                static_cast<int>(time.Clock.seconds().count()));
  return text.data();
}

void WriteHead(const MapLayout& map, const SavingTime& time, LayoutText& file) {
  file.Raw(map.Header);
  file.Raw(TimeStamp(time));
  file.Fields(map.RegionCount, map.AreaCount);
  file.Raw(map.PictureFile);
  const auto& rgb = map.PlayerRGB;
  file.Fields(rgb[0], rgb[1], rgb[2], rgb[3]);
}

char CardLetter(const Area& area) {
  const CardSymbol* symbol = SymbolOfCode(area.Symbol);
  return symbol == nullptr ? 'G' : symbol->Letter;
}

void WriteRegionGroups(const MapLayout& map, LayoutText& file) {
  for (std::int16_t r = 1; r <= map.RegionCount; ++r) {
    const Region& region = map.Regions(r);
    file.Fields(r, MemberCount(map, r), region.RGB, region.Name, region.Armies);
    for (std::int16_t i = 1; i <= map.AreaCount; ++i) {
      const Area& area = map.Areas(i);
      if (area.Region != r) continue;
      const char letter = CardLetter(area);
      file.Fields(i, std::string_view(&letter, 1), area.Name, area.Links, area.Corner);
    }
  }
}

/// 0, or the Area without neighbours that stopped the writing.
std::int16_t WriteBridges(const MapLayout& map, LayoutText& file) {
  file.Raw(BridgesHeading);
  for (std::int16_t i = 1; i <= map.AreaCount; ++i) {
    if (LinkCount(map.AreaLinks(i)) == 0) return i;
    const std::string bridge = BridgeText(map, i);
    if (!bridge.empty()) file.Fields(i, bridge);
  }
  file.Fields(std::int16_t{0}, std::string_view("  "));
  return 0;
}

void WriteRoutes(const MapLayout& map, LayoutText& file) {
  file.Raw(RoutesHeading);
  const RouteFinder routes(map);
  for (std::int16_t i = 1; i <= map.AreaCount; ++i) file.Fields(i, routes.BlitzRoute(i));
}

void WriteBreaks(const MapLayout& map, LayoutText& file) {
  file.Raw(BreaksHeading);
  for (std::int16_t r = 1; r <= map.RegionCount; ++r) {
    const std::string breaks = BreakText(map, r);
    if (!breaks.empty()) file.Fields(r, breaks);
  }
}

void WritePlaces(const MapLayout& map, LayoutText& file) {
  const auto place = [&](std::int16_t number, const MarkerRecord& marker) {
    const MarkerPlace at = marker.Place.value_or(MarkerPlace{});
    file.Fields(number, at.Left, at.Top);
  };
  file.Raw(AreaPlacesHeading);
  file.Fields(map.TwipsX, map.TwipsY);
  for (std::int16_t i = 0; i <= map.AreaCount; ++i) place(i, map.AreaMarkers(i));
  file.Raw(RegionPlacesHeading);
  for (std::int16_t r = 1; r <= map.RegionCount; ++r) place(r, map.RegionMarkers(r));
  file.Raw(LastLine);
}

}  // namespace

LayoutWritten WriteLayout(const MapLayout& map, const SavingTime& time) {
  LayoutText file;
  WriteHead(map, time, file);
  WriteRegionGroups(map, file);
  if (const std::int16_t area = WriteBridges(map, file); area != 0) return {file.Text(), area};
  WriteRoutes(map, file);
  WriteBreaks(map, file);
  WritePlaces(map, file);
  return {file.Text()};
}

}  // namespace terramark
