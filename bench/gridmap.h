// A map that passes all rules: as many Areas as there may be, on a grid.
#pragma once

#include <cstdint>
#include <string>

#include "document/numbers.h"
#include "shell/clearmap.h"
#include "shell/form1.h"

namespace terramark {

inline constexpr int GridColumns = 12;
inline constexpr int GridRows = 8;

/// The neighbours to all sides and along one diagonal, six inside the map, as on a real one.
inline std::string GridLinks(int column, int row) {
  constexpr int Steps[][2] = {{0, -1}, {1, -1}, {1, 0}, {0, 1}, {-1, 1}, {-1, 0}};
  std::string pairs;
  for (const auto& step : Steps) {
    const int x = column + step[0];
    const int y = row + step[1];
    if (x < 0 || y < 0 || x >= GridColumns || y >= GridRows) continue;
    pairs += TwoDigit(static_cast<std::int16_t>(y * GridColumns + x + 1));
  }
  return TwoDigit(static_cast<std::int16_t>(pairs.size() / 2)) + pairs;
}

/// 96 Areas on a grid, in 8 Regions of 12 that are three wide and four high.
inline void MakeGridMap(Form1& form) {
  ClearMap(form);
  form.PictureFile = "C:\\MAPS\\GRID.BMP";
  form.AreaCount = GridColumns * GridRows;
  form.RegionCount = 8;
  for (std::int16_t r = 1; r <= form.RegionCount; ++r) {
    form.Continent.Load(r);
    form.RegionName(r) = "Region" + NumberText(r);
    form.RegionRGB(r) = {200, 120, static_cast<std::int16_t>(20 * r)};
    form.Continent(r).Move(40.0F * r, 12);
  }
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    const int column = (i - 1) % GridColumns;
    const int row = (i - 1) / GridColumns;
    form.ArmyAt.Load(i);
    form.ArmyAt(i).Move(40.0F * static_cast<float>(column), 30.5F * static_cast<float>(row));
    form.AreaName(i) = "Territory" + NumberText(i);
    form.AreaLinks(i) = GridLinks(column, row);
    form.AreaSymbol(i) = "1";
    form.AreaRegion(i) = static_cast<std::int16_t>(column / 3 + row / 4 * 4 + 1);
    form.AreaCorner(i) = 2;
  }
}

}  // namespace terramark
