#include <gtest/gtest.h>

#include "support/editortest.h"

namespace terramark {
namespace {

using namespace forms;

/// An Area at 600, 300 of a large picture, and the map scrolled there.
class ZoomTest : public EditorTest {
 protected:
  ZoomTest() {
    Box.Picture = BlankPicture(2000, 1000);
    Click(Form.AddTer);
    Area().Move(600, 300);
    Box.ScrollTo(400, 200);
  }
  /// Where in the window a pixel of the picture begins.
  PixelPoint At(int x, int y) const { return OnForm(Box, {x, y}); }

  PictureBox& Box = Form.Picture1;
  Label& Area() { return Form.ArmyAt(1); }
};

TEST_F(ZoomTest, KeepsThePixelUnderThePointerAndComesBackByTheSameSteps) {
  const PixelPoint about{301, 97};
  const PixelPoint pixel = OnPicture(Box, about);
  for (const char* shown : {"16000 8000", "12000 6000", "8000 4000", "6000 3000", "4000 2000"}) {
    Box.ZoomTo(LargestZoom, about);
    while (std::to_string(Box.ShownWidth()) + " " + std::to_string(Box.ShownHeight()) != shown) {
      ASSERT_NE(Box.Zoom.Get(), SmallestZoom) << shown;
      Box.ZoomTo(Smaller(Box.Zoom), about);
    }
    EXPECT_EQ(OnPicture(Box, about).X, pixel.X) << shown;
    EXPECT_EQ(OnPicture(Box, about).Y, pixel.Y) << shown;
  }
  for (int i = 0; i < 9; ++i) Key(KeyMinus, CtrlKey);
  EXPECT_EQ(Box.Zoom.Get(), SmallestZoom);
  EXPECT_EQ(Box.ScrollLeft.Get(), 0);
  EXPECT_FALSE(Box.ScrollsAcross() || Box.ScrollsDown()) << "500 x 250";
  Key(KeyPlus, CtrlKey | ShiftKey);
  EXPECT_EQ(Box.ShownWidth(), 1000);
  Key(Key0, CtrlKey);
  EXPECT_EQ(Box.Zoom.Get(), ActualSize);
}

TEST_F(ZoomTest, EveryGestureMeansThePixelThatIsSeen) {
  for (Magnification zoom = SmallestZoom;; zoom = Larger(zoom)) {
    const std::string name = std::to_string(zoom.Screen) + "/" + std::to_string(zoom.Picture);
    Area().Move(600, 300);
    Box.ZoomTo(zoom, {});
    Box.ScrollTo(0, 0);
    const PixelRect seen = InBox(Box, PixelBounds(Area()));
    Box.ScrollTo(seen.Left - 30, seen.Top - 30);
    const int size = std::max(1, zoom.Screen);
    const PixelPoint grip = At(608, 308);
    EXPECT_EQ(&Form.Pointer.Under(At(600, 300).X, grip.Y), &Area()) << name;
    EXPECT_NE(&Form.Pointer.Under(At(600, 300).X - 1, grip.Y), &Area()) << name;
    EXPECT_EQ(&Form.Pointer.Under(At(632, 300).X - 1, grip.Y), &Area()) << name;
    EXPECT_NE(&Form.Pointer.Under(At(632, 300).X, grip.Y), &Area()) << name;
    for (int travel = 1; travel <= size; ++travel) {
      Form.Picture1.Ringed = nullptr;
      DragFrom(grip, travel, 0);
      const int moved = zoom.Picture > 1 ? zoom.Picture : travel == size ? 1 : 0;
      EXPECT_EQ(Area().Left.Get(), static_cast<float>(600 + moved)) << name << " " << travel;
      EXPECT_EQ(Form.CurArea, moved == 0 ? 1 : 0) << name << " " << travel;
      Area().Move(600, 300);
      ClickInside(Form, 620, 440);
      Form.CurArea = 0;
    }
    DragFrom(grip, 40 * zoom.Screen / zoom.Picture, 20 * zoom.Screen / zoom.Picture);
    EXPECT_EQ(Marker(Area()).substr(0, 13), "+1 at 640,320") << name;
    const PixelPoint press = At(604, 304);
    const PixelPoint pixel = Inside(Box, press);
    DragFrom(press, 0, 0, CtrlKey);
    const Label& added = Form.ArmyAt(Form.AreaCount);
    EXPECT_EQ(added.Left.Get(), static_cast<float>(pixel.X)) << name;
    EXPECT_EQ(added.Top.Get(), static_cast<float>(pixel.Y - 16)) << name;
    Form.ArmyAt.Unload(Form.AreaCount--);
    if (zoom == LargestZoom) break;
  }
}

TEST_F(ZoomTest, ANewPictureBeginsAtItsActualSizeAndARefreshedOneStays) {
  Screen.Pictures["new.bmp"] = BlankPicture(900, 900);
  Screen.FileNames = {"gone.bmp", "new.bmp"};
  Key(KeyPlus, CtrlKey);
  Click(Form.LoadMap);
  EXPECT_NE(Box.Zoom.Get(), ActualSize) << "nothing was loaded";
  Click(Form.LoadMap);
  EXPECT_EQ(Box.Zoom.Get(), ActualSize);
  Key(KeyPlus, CtrlKey);
  Click(Form.RefMap);
  EXPECT_NE(Box.Zoom.Get(), ActualSize);
}

}  // namespace
}  // namespace terramark
