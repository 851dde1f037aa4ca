#include "layoutfile/writemapfile.h"

#include <array>
#include <cstdio>
#include <string>

#include "document/cardsymbol.h"
#include "document/links.h"
#include "layoutfile/regionlinks.h"
#include "layoutfile/routes.h"
#include "selection/selection.h"
#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "shell/randomcard.h"

namespace terramark {

namespace {

constexpr char DefaultHeader[] = "MAP Layout File";

std::string TimeStamp(const forms::DateTime& now) {
  std::array<char, 80> text;
  std::snprintf(text.data(), text.size(), "%02d-%02d-%04d %02d:%02d:%02d", now.Month, now.Day,
                now.Year, now.Hour, now.Minute, now.Second);
  return text.data();
}

void WriteHead(Form1& form, LayoutText& file) {
  file.Raw(form.Text1.Text.Get());
  file.Raw(TimeStamp(form.Host.Now()));
  file.Fields(form.RegionCount, form.AreaCount);
  file.Raw(form.PictureFile);
  const auto& rgb = form.PlayerRGB;
  file.Fields(rgb[0], rgb[1], rgb[2], rgb[3]);
}

/// An Area without a symbol gets one drawn for the file alone. Code "9" has no letter of its own.
char CardLetter(Form1& form, std::int16_t area) {
  const std::string& symbol = form.AreaSymbol(area);
  const char code = symbol.empty() ? RandomCardSymbol(form) : symbol[0];
  const CardSymbol* found = SymbolOfCode(std::string_view(&code, 1));
  return found == nullptr ? 'G' : found->Letter;
}

void WriteRegionGroups(Form1& form, LayoutText& file) {
  for (std::int16_t r = 1; r <= form.RegionCount; ++r) {
    file.Fields(r, MembersOf(form, r), form.RegionRGB(r), form.RegionName(r), form.RegionArmies(r));
    for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
      if (form.AreaRegion(i) != r) continue;
      const char letter = CardLetter(form, i);
      file.Fields(i, std::string_view(&letter, 1), form.AreaName(i), form.AreaLinks(i),
                  form.AreaCorner(i));
    }
  }
}

bool WriteBridges(Form1& form, LayoutText& file) {
  file.Raw("BRIDGES BETWEEN REGIONS");
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    if (LinkCount(form.AreaLinks(i)) == 0) {
      ShowMessage(form, "Area " + form.AreaName(i) + " has no neighbours", ClrRed);
      return false;
    }
    const std::string bridge = BridgeText(form, i);
    if (!bridge.empty()) file.Fields(i, bridge);
  }
  file.Fields(std::int16_t{0}, std::string_view("  "));
  return true;
}

void WriteRoutes(const Tables& tables, LayoutText& file) {
  file.Raw("BLITZ");
  const RouteFinder routes(tables);
  for (std::int16_t i = 1; i <= tables.AreaCount; ++i) file.Fields(i, routes.BlitzRoute(i));
}

void WriteBreaks(const Tables& tables, LayoutText& file) {
  file.Raw("BREAKS");
  for (std::int16_t r = 1; r <= tables.RegionCount; ++r) {
    const std::string breaks = BreakText(tables, r);
    if (!breaks.empty()) file.Fields(r, breaks);
  }
}

void WritePositions(Form1& form, LayoutText& file) {
  const auto position = [&](std::int16_t number, const forms::Label& marker) {
    file.Fields(number, marker.Left.Get(), marker.Top.Get());
  };
  file.Raw("X,Y Coordinates for Areas");
  file.Fields(form.Host.TwipsPerPixelX(), form.Host.TwipsPerPixelY());
  for (std::int16_t i = 0; i <= form.AreaCount; ++i) position(i, form.ArmyAt(i));
  file.Raw("X,Y Coordinates for Regions");
  for (std::int16_t r = 1; r <= form.RegionCount; ++r) position(r, form.Continent(r));
  file.Raw("END OF MAP DEFINITION");
}

}  // namespace

bool WriteMapFile(Form1& form, LayoutText& file) {
  ClearSelection(form);
  if (form.Text1.Text.Get().empty()) form.Text1.Text = DefaultHeader;
  WriteHead(form, file);
  WriteRegionGroups(form, file);
  if (!WriteBridges(form, file)) return false;
  WriteRoutes(form, file);
  WriteBreaks(form, file);
  WritePositions(form, file);
  return true;
}

}  // namespace terramark
