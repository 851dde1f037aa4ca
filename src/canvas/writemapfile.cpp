#include "canvas/writemapfile.h"

#include <chrono>
#include <string>

#include "selection/selection.h"
#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "shell/randomcard.h"

namespace terramark {

namespace {

constexpr char DefaultHeader[] = "MAP Layout File";

SavingTime SaveTime(Form1& form) {
  using namespace std::chrono;
  const forms::DateTime now = form.Host.Now();
  return {year(now.Year) / now.Month / now.Day,
          hh_mm_ss(hours(now.Hour) + minutes(now.Minute) + seconds(now.Second))};
}

/// In the order of the file: the random numbers have always been drawn in this order.
void PickMissingSymbols(Form1& form, MapLayout& map) {
  for (std::int16_t r = 1; r <= map.RegionCount; ++r) {
    for (std::int16_t i = 1; i <= map.AreaCount; ++i) {
      Area& area = map.Areas(i);
      if (area.Region == r && area.Symbol.empty()) area.Symbol = RandomCardSymbol(form);
    }
  }
}

MarkerPlace PlaceOf(const forms::Label& marker) {
  return {marker.Left, marker.Top};
}

MapLayout LayoutOf(Form1& form) {
  MapLayout map;
  static_cast<Tables&>(map) = form;
  map.Header = form.Text1.Text;
  map.TwipsX = form.Host.TwipsPerPixelX();
  map.TwipsY = form.Host.TwipsPerPixelY();
  map.AreaMarkers(0).Place = PlaceOf(form.ArmyAt(0));
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    map.AreaMarkers(i) = {form.RegionRGB(form.AreaRegion(i)), PlaceOf(form.ArmyAt(i))};
  }
  for (std::int16_t r = 1; r <= form.RegionCount; ++r) {
    map.RegionMarkers(r) = {form.RegionRGB(r), PlaceOf(form.Continent(r))};
  }
  return map;
}

}  // namespace

LayoutWritten WriteMapFile(Form1& form) {
  ClearSelection(form);
  if (form.Text1.Text.Get().empty()) form.Text1.Text = DefaultHeader;
  const SavingTime now = SaveTime(form);
  MapLayout map = LayoutOf(form);
  PickMissingSymbols(form, map);
  LayoutWritten file = WriteLayout(map, now);
  if (file.StoppedAtArea != 0) {
    ShowMessage(form, "Area " + form.AreaName(file.StoppedAtArea) + " has no neighbours", ClrRed);
  }
  return file;
}

}  // namespace terramark
