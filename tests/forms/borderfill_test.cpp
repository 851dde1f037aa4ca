#include "forms/borderfill.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace terramark::forms {
namespace {

constexpr Color Brush = 0x00000080;  // dark red
constexpr std::uint32_t Painted = 0xFF800000;

using Rows = std::vector<std::string>;

/// '#' pure black, 'd' almost black, '.' white; painted pixels come back as 'r'.
Rows Filled(Rows rows, int x, int y) {
  Raster raster{static_cast<int>(rows[0].size()), static_cast<int>(rows.size()), {}};
  for (const std::string& row : rows) {
    for (const char c : row) {
      raster.Pixels.push_back(c == '#' ? 0xFF000000 : c == 'd' ? 0xFF010000 : 0xFFFFFFFF);
    }
  }
  BorderFill(raster, x, y, Brush, 0);
  auto pixel = raster.Pixels.begin();
  for (std::string& row : rows) {
    for (char& c : row) c = *pixel++ == Painted ? 'r' : c;
  }
  return rows;
}

TEST(BorderFill, StopsAtPureBlackOnlyAndFindsEveryGapButCorners) {
  EXPECT_EQ(Filled({"..#..", ".d#..", "##...", "....."}, 0, 0),
            (Rows{"rr#..", "rr#..", "##...", "....."}));
  EXPECT_EQ(Filled({".....", ".###.", ".#.#.", ".#.#.", "....."}, 2, 2),
            (Rows{"rrrrr", "r###r", "r#r#r", "r#r#r", "rrrrr"}));
  // From the border or from outside it paints nothing.
  const Rows rows{".#.", "...", "..."};
  for (const auto& [x, y] : {std::pair{1, 0}, {-1, 0}, {3, 0}, {0, 3}, {0, -1}}) {
    EXPECT_EQ(Filled(rows, x, y), rows) << x << ' ' << y;
  }
}

// A comb makes a recursive fill overflow and a careless one look at pixels again and again.
TEST(BorderFill, FillsLargeCombsAndPaintedGround) {
  Raster raster{2000, 2000, std::vector<std::uint32_t>(2000 * 2000, 0xFFFFFFFF)};
  for (int y = 1; y < 2000; ++y) {
    for (int x = 1; x < 2000; x += 2) raster.Pixels[raster.At(x, y)] = 0xFF000000;
  }
  BorderFill(raster, 0, 1999, Brush, 0);
  EXPECT_EQ(raster.Pixels[raster.At(1998, 1999)], Painted);
  const std::vector<std::uint32_t> once = raster.Pixels;
  BorderFill(raster, 1998, 5, Brush, 0);
  EXPECT_EQ(raster.Pixels, once) << "a second fill over the same ground ends, and changes nothing";
}

}  // namespace
}  // namespace terramark::forms
