// Pictures to flood, from a map's lands to what is hardest on a flood, and the points to flood
// from.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

#include "forms/geometry.h"
#include "forms/raster.h"

namespace terramark {

struct FloodMap {
  static constexpr std::uint32_t Ground = 0xFFFFFFFF;
  static constexpr std::uint32_t Border = 0xFF000000;

  FloodMap(int width, int height, std::uint32_t pixel) : Picture{width, height, {}} {
    Picture.Pixels.assign(Picture.IndexOf(0, height), pixel);
  }

  std::uint32_t& At(int x, int y) { return Picture.Pixels[Picture.IndexOf(x, y)]; }

  forms::Raster Picture;
  std::vector<forms::PixelPoint> Seeds;
};

inline FloodMap OpenMap(int width, int height) {
  FloodMap map(width, height, FloodMap::Ground);
  map.Seeds = {{width / 2, height / 2}};
  return map;
}

/// 96 lands on a grid of 12 by 8, between borders one and two pixels wide, with a seed in each.
inline FloodMap LandsMap(int width, int height) {
  constexpr int Columns = 12;
  constexpr int Rows = 8;
  FloodMap map(width, height, FloodMap::Ground);
  for (int i = 1; i < Columns; ++i) {
    const int left = i * width / Columns;
    for (int y = 0; y < height; ++y) std::fill_n(&map.At(left, y), 1 + i % 2, FloodMap::Border);
  }
  for (int i = 1; i < Rows; ++i) {
    for (int row = 0; row <= i % 2; ++row) {
      std::fill_n(&map.At(0, i * height / Rows + row), width, FloodMap::Border);
    }
  }
  for (int i = 0; i < Columns * Rows; ++i) {
    const int left = i % Columns * width / Columns;
    const int top = i / Columns * height / Rows;
    map.Seeds.push_back({left + width / Columns / 2 + i % 5, top + height / Rows / 2 + i % 7});
  }
  return map;
}

/// The seeds of the lands on open ground: all leak into one region.
inline FloodMap LeaksMap(int width, int height) {
  FloodMap map = OpenMap(width, height);
  map.Seeds = LandsMap(width, height).Seeds;
  return map;
}

/// Teeth of one pixel, with one pixel between them, that hang together at the top.
inline FloodMap CombMap(int width, int height) {
  FloodMap map(width, height, FloodMap::Ground);
  for (int y = 1; y < height; ++y) {
    for (int x = 1; x < width; x += 2) map.At(x, y) = FloodMap::Border;
  }
  map.Seeds = {{0, height - 1}};
  return map;
}

/// Three pixels of ten are border; the seed lies on open ground that reaches far.
inline FloodMap NoiseMap(int width, int height) {
  FloodMap map(width, height, FloodMap::Ground);
  std::mt19937 random(1);
  for (std::uint32_t& pixel : map.Picture.Pixels) {
    if (random() % 10 < 3) pixel = FloodMap::Border;
  }
  for (int x = 0; x < width; ++x) map.At(x, height / 2) = FloodMap::Ground;
  map.Seeds = {{width / 2, height / 2}};
  return map;
}

/// One corridor of a pixel that winds from the corner to the middle.
inline FloodMap SpiralMap(int width, int height) {
  FloodMap map(width, height, FloodMap::Border);
  forms::PixelPoint at;
  int across = width - 1;
  int down = height - 1;
  const auto go = [&](int stepX, int stepY, int length) {
    for (int i = 0; i < length; ++i) {
      at = at + forms::PixelPoint{stepX, stepY};
      map.At(at.X, at.Y) = FloodMap::Ground;
    }
  };
  go(0, 0, 1);
  go(1, 0, across);
  for (int side = 1; across > 1 && down > 1; side = -side) {
    go(0, side, down);
    go(-side, 0, across);
    down -= 2;
    across -= 2;
  }
  map.Seeds = {{0, 0}};
  return map;
}

/// A labyrinth of corridors of a pixel, with one way from anywhere to anywhere.
inline FloodMap MazeMap(int width, int height) {
  constexpr std::array<forms::PixelPoint, 4> Steps{{{1, 0}, {0, 1}, {-1, 0}, {0, -1}}};
  FloodMap map(width, height, FloodMap::Border);
  std::mt19937 random(1);
  map.Seeds = {{0, 0}};
  map.At(0, 0) = FloodMap::Ground;
  std::vector<forms::PixelPoint> way = map.Seeds;
  while (!way.empty()) {
    const forms::PixelPoint at = way.back();
    const std::size_t turn = random() % Steps.size();
    bool stuck = true;
    for (std::size_t i = 0; i < Steps.size() && stuck; ++i) {
      const forms::PixelPoint step = Steps[(turn + i) % Steps.size()];
      const forms::PixelPoint next = at + step + step;
      stuck = !forms::PixelRect{0, 0, width, height}.Contains(next) ||
              map.At(next.X, next.Y) == FloodMap::Ground;
      if (stuck) continue;
      map.At(at.X + step.X, at.Y + step.Y) = FloodMap::Ground;
      map.At(next.X, next.Y) = FloodMap::Ground;
      way.push_back(next);
    }
    if (stuck) way.pop_back();
  }
  return map;
}

}  // namespace terramark
