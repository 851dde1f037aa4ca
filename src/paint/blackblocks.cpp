#include "paint/blackblocks.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>

#include "forms/floodbits.h"

namespace terramark::paint {

namespace {

using forms::PixelBits;
using Word = PixelBits::Word;

/// ORs neighbouring bits, and packs the results into the lower half.
Word PairsIn(Word bits) {
  bits = (bits | bits >> 1U) & 0x5555555555555555U;
  bits = (bits | bits >> 1U) & 0x3333333333333333U;
  bits = (bits | bits >> 2U) & 0x0F0F0F0F0F0F0F0FU;
  bits = (bits | bits >> 4U) & 0x00FF00FF00FF00FFU;
  bits = (bits | bits >> 8U) & 0x0000FFFF0000FFFFU;
  return (bits | bits >> 16U) & 0x00000000FFFFFFFFU;
}

/// ORs a row into the row of half its length.
void AddHalved(std::span<const Word> row, std::span<Word> to) {
  for (std::size_t i = 0; i < row.size(); ++i) {
    to[i / 2] |= PairsIn(row[i]) << (i % 2 * PixelBits::WordBits / 2);
  }
}

PixelBits FirstLevel(const forms::Raster& picture) {
  PixelBits level((picture.Width + 1) / 2, (picture.Height + 1) / 2);
  PixelBits black(picture.Width, 1);
  const std::span<Word> row = black.Row(0);
  const auto width = static_cast<std::size_t>(picture.Width);
  const std::span<const std::uint32_t> pixels(picture.Pixels);
  for (int y = 0; y < picture.Height; ++y) {
    // A flood of the black could enter just the black pixels.
    SetOpenBits(pixels.subspan(picture.IndexOf(0, y), width), 0, forms::FloodStops::AtOtherColours,
                row);
    // The bits beyond the last pixel have no meaning.
    if (const auto rest = width % PixelBits::WordBits; rest != 0) {
      row.back() &= (Word{1} << rest) - 1;
    }
    AddHalved(row, level.Row(y / 2));
  }
  return level;
}

PixelBits NextLevel(const PixelBits& from, int fromWidth, int fromHeight) {
  PixelBits level((fromWidth + 1) / 2, (fromHeight + 1) / 2);
  for (int y = 0; y < fromHeight; ++y) AddHalved(from.Row(y), level.Row(y / 2));
  return level;
}

/// A block at the edge that is cut so short that it is not shown gives its black to the one before.
void FoldEdge(PixelBits& level, forms::Magnification zoom, int width, int height) {
  const int across = ToScreen(zoom, width);
  const int down = ToScreen(zoom, height);
  const bool rest = across > 0 && across * zoom.Picture < width;
  const int rows = (height + zoom.Picture - 1) / zoom.Picture;
  for (int y = 0; rest && y < rows; ++y) {
    if (level.At(across, y)) level.Set(across - 1, y);
  }
  if (down == 0 || down == rows) return;
  std::ranges::transform(level.Row(down), level.Row(down - 1), level.Row(down - 1).begin(),
                         std::bit_or<>());
}

/// For a zoom below actual size, how many steps of halving it is.
std::size_t LevelOf(forms::Magnification zoom) {
  static_assert(std::ranges::all_of(forms::ZoomSteps, [](forms::Magnification step) {
    return std::has_single_bit(static_cast<unsigned>(step.Picture));
  }));
  return static_cast<std::size_t>(std::countr_zero(static_cast<unsigned>(zoom.Picture)));
}

}  // namespace

BlackBlocks::BlackBlocks(const forms::Picture& picture) {
  if (!picture || picture->Width == 0) return;
  levels_.push_back(FirstLevel(*picture));
  int width = picture->Width;
  int height = picture->Height;
  while (levels_.size() < LevelOf(forms::ZoomSteps[0])) {
    width = (width + 1) / 2;
    height = (height + 1) / 2;
    levels_.push_back(NextLevel(levels_.back(), width, height));
  }
  for (const forms::Magnification zoom : forms::ZoomSteps) {
    if (const std::size_t level = LevelOf(zoom); level > 0) {
      FoldEdge(levels_[level - 1], zoom, picture->Width, picture->Height);
    }
  }
}

const PixelBits* BlackBlocks::At(forms::Magnification zoom) const {
  const std::size_t level = LevelOf(zoom);
  return level == 0 || levels_.empty() ? nullptr : &levels_[level - 1];
}

}  // namespace terramark::paint
