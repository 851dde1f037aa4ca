#include "forms/borderfill.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <vector>

#include "forms/form.h"
#include "forms/picturebox.h"
#include "support/scripteddesktop.h"

namespace terramark::forms {
namespace {

constexpr Color Red = 0x000000FF;
constexpr Color Black = 0;
constexpr std::uint32_t Shades[] = {0xFF000000, 0xFF010000, 0xFFFF0000, 0xFFFFFFFF};

/// From one seed, pixel by pixel.
void SlowFill(Raster& raster, PixelPoint seed, Color brush, Color border) {
  std::vector<bool> seen(raster.Pixels.size());
  for (std::vector<PixelPoint> next{seed}; !next.empty();) {
    const PixelPoint at = next.back();
    next.pop_back();
    if (!PixelRect{0, 0, raster.Width, raster.Height}.Contains(at)) continue;
    const std::size_t pixel = raster.IndexOf(at.X, at.Y);
    if (seen[pixel] || raster.Pixels[pixel] == PixelOf(border)) continue;
    seen[pixel] = true;
    raster.Pixels[pixel] = PixelOf(brush);
    for (const PixelPoint step : {PixelPoint{1, 0}, {-1, 0}, {0, 1}, {0, -1}}) {
      next.push_back(at + step);
    }
  }
}

TEST(BorderFill, PaintsWhatFillingPixelByPixelFromSeedAfterSeedDoes) {
  std::mt19937 random(1);
  const auto below = [&](int limit) { return static_cast<int>(random() % unsigned(limit)); };
  for (int round = 0; round < 2000; ++round) {
    constexpr int Widths[] = {1, 63, 64, 65, 128, 130, 200};
    Raster raster{Widths[below(7)], 1 + below(12), {}};
    for (int y = 0; y < raster.Height; ++y) {
      const int mixedInThousand = below(3) * below(2) * below(400);
      for (int x = 0; x < raster.Width; ++x) {
        raster.Pixels.push_back(Shades[below(1000) < mixedInThousand ? below(3) : 3]);
      }
    }
    PictureBox box("Box");
    box.Picture = std::make_shared<Raster>(raster);
    for (int fill = below(3); fill >= 0; --fill) {
      std::vector<PixelPoint> seeds;
      for (int i = below(5); i > 0; --i) {
        seeds.push_back({below(raster.Width + 2) - 1, below(raster.Height + 2) - 1});
        if (below(2) == 0) seeds.push_back(seeds[0]);
      }
      box.FillColor = below(2) == 0 ? Black : Red;
      const Color border = below(4) == 0 ? Red : Black;
      for (const PixelPoint seed : seeds) SlowFill(raster, seed, box.FillColor, border);
      EXPECT_TRUE(box.FillToBorder(seeds, border));
      ASSERT_EQ(box.Image().Pixels, raster.Pixels) << round << ", " << raster.Width << " wide";
    }
  }
}

TEST(PictureBoxImage, IsThePictureUntilItIsPaintedOnOrHasToBeLarger) {
  PictureBox box("Box");
  box.Width = 40;
  box.Height = 1;
  const Picture wall = std::make_shared<Raster>(Raster{40, 1, std::vector(40, Shades[3])});
  const PixelPoint outside[] = {{40, 0}};
  const PixelPoint corner[] = {{0, 0}};
  for (int time = 0; time < 2; ++time) {
    box.Picture = wall;
    box.FillToBorder(outside, Black);
    EXPECT_EQ(&box.Backdrop(), wall.get());
    box.FillToBorder(corner, Black);
    EXPECT_EQ(box.Image().Pixels, std::vector(40, PixelOf(box.FillColor)));
    EXPECT_EQ(wall->Pixels, std::vector(40, Shades[3]));
  }
  box.Width = 41;
  EXPECT_EQ(box.Image().Pixels[39], Shades[3]);
  EXPECT_EQ(box.Image().Pixels[40], PixelOf(box.BackColor));
  box.Picture = nullptr;
  EXPECT_EQ(box.Image().Width, 41);
}

TEST(PictureBoxImage, StaysWhenItsViewHasNoMemoryForAnother) {
  ScriptedDesktop screen;
  Form window{screen, "Window"};
  PictureBox box("Box");
  window.Add(box, window);
  struct : Watcher {
    using Watcher::Watcher;
    void PropertyChanged(Control&, PropertyId) override { throw std::bad_alloc(); }
  } view(window);
  for (const int side : {1, 5})
    EXPECT_THROW(box.Picture = BlankPicture(side, side), std::bad_alloc);
  EXPECT_EQ(box.Image().Width, 0);
}

}  // namespace
}  // namespace terramark::forms
