#include <gtest/gtest.h>

#include "document/corner.h"
#include "selection/selection.h"
#include "support/editortest.h"

namespace terramark {
namespace {

using namespace forms;

TEST(Zoom, GoesBetweenPixelsOfThePictureAndOfTheScreen) {
  const struct {
    Magnification Zoom;
    int OnScreen, MapToPicture, Begins;
  } cases[]{{{1, 4}, 0, 2, 0},  {{1, 4}, 5, 22, 5}, {{1, 4}, -1, -2, -1}, {{1, 2}, -3, -5, -3},
            {{1, 2}, 7, 15, 7}, {{1, 1}, 9, 9, 9},  {{3, 1}, 8, 2, 6},    {{3, 1}, -1, -1, -3},
            {{8, 1}, 7, 0, 0},  {{8, 1}, 8, 1, 8},  {{8, 1}, -9, -2, -16}};
  for (const auto& [zoom, onScreen, onPicture, begins] : cases) {
    EXPECT_EQ(ToPicture(zoom, onScreen), onPicture) << zoom.Screen << zoom.Picture << onScreen;
    EXPECT_EQ(ToScreen(zoom, onPicture), begins) << zoom.Screen << zoom.Picture << onScreen;
  }
  EXPECT_EQ(ToScreen({1, 4}, 10), 2) << "the third would show the eleventh pixel";
  EXPECT_EQ(ToScreen({1, 4}, 11), 3);
}

/// An Area at 600, 300 of a large picture.
class ZoomTest : public EditorTest {
 protected:
  ZoomTest() {
    Box.Picture = BlankPicture(2000, 1000);
    Click(Form.AddTer);
    Area().Move(600, 300);
    Box.ScrollTo(400, 200);
  }
  Label& Area() { return Form.ArmyAt(1); }
  /// Shows the Area near the view's corner.
  void Show(Magnification zoom) {
    Box.ZoomTo(zoom, {});
    Box.ScrollTo(600 * zoom.Screen / zoom.Picture - 30, 300 * zoom.Screen / zoom.Picture - 30);
  }

  PictureBox& Box = Form.Picture1;
};

TEST_F(ZoomTest, KeepsThePixelUnderThePointer) {
  const PixelPoint about{301, 97};
  const PixelPoint pixel = MapToPicture(Box, about);
  for (int i = 0; i < 5; ++i) {
    Box.ZoomTo(Larger(Box.Zoom), about);
    EXPECT_EQ(MapToPicture(Box, about).X, pixel.X) << Box.Zoom.Get().Screen;
    EXPECT_EQ(MapToPicture(Box, about).Y, pixel.Y) << Box.Zoom.Get().Screen;
  }
  EXPECT_EQ(Box.ZoomedWidth(), 16000);
  for (int i = 0; i < 11; ++i) Key(KeyMinus, CtrlKey);
  EXPECT_EQ(Box.ZoomedWidth(), 62);
  EXPECT_EQ(Box.ScrollLeft.Get(), 0);
  EXPECT_FALSE(Box.ScrollsAcross() || Box.ScrollsDown());
  Key(KeyPlus, CtrlKey | ShiftKey);
  EXPECT_EQ(Box.ZoomedWidth(), 125);
  Key(Key0, CtrlKey);
  EXPECT_EQ(Box.Zoom.Get(), ActualSize);
}

TEST_F(ZoomTest, OneKeyShowsTheWholePicture) {
  const struct {
    int Width, Height;
    Magnification Fits;
  } cases[]{{2000, 1000, {1, 4}}, {546, 308, {1, 1}}, {547, 308, {1, 2}},    {273, 154, {2, 1}},
            {10, 9, {8, 1}},      {0, 0, {1, 1}},     {4096, 4096, {1, 16}}, {100, 12000, {1, 32}}};
  for (const auto& [width, height, fits] : cases) {
    Box.Picture = BlankPicture(width, height);
    Key(Key9, CtrlKey);
    EXPECT_EQ(Box.Zoom.Get(), fits) << width << " x " << height;
  }
}

TEST_F(ZoomTest, BelowActualSizeAMarkerKeepsItsSizeAndItsFillPointItsPlace) {
  for (int turns = 0; turns < 4; ++turns) {
    const std::int16_t corner = Form.AreaCorner(1);
    Area().Move(600, 304);
    const PixelPoint fill{AtRight(corner) ? 632 : 600, AtBottom(corner) ? 320 : 304};
    Show({1, 8});
    const PixelRect seen = MapToBox(Box, DisplayBounds(Area()));
    EXPECT_EQ(seen.Width, 32);
    EXPECT_EQ(seen.Height, 16);
    EXPECT_EQ(seen.Left + (AtRight(corner) ? 32 : 0), MapToBox(Box, fill).X) << corner;
    EXPECT_EQ(seen.Top + (AtBottom(corner) ? 16 : 0), MapToBox(Box, fill).Y) << corner;
    // A press on its far edge, which is beside its part of the picture, carries it.
    const PixelPoint onForm = MapToForm(Form, PixelBounds(Box).TopLeft() + seen.TopLeft());
    DragFrom(onForm + PixelPoint{AtRight(corner) ? 0 : 31, AtBottom(corner) ? 0 : 15}, 40, 20);
    EXPECT_EQ(Area().Left.Get(), 920) << corner;
    EXPECT_EQ(Area().Top.Get(), 464) << corner;
    Click(Area(), 0, RightButton);
  }
  Form.Continent.Load(1);
  Form.Continent(1).Visible = true;
  Form.Continent(1).Move(800, 80);
  EXPECT_EQ(DisplayBounds(Form.Continent(1)).TopLeft().X, 800);
  EXPECT_EQ(DisplayBounds(Form.Continent(1)).TopLeft().Y, 80);
}

TEST_F(ZoomTest, EveryGestureMeansThePixelThatIsSeen) {
  const struct {
    Magnification Zoom;
    int Travel;  // of the screen
    int Moved;   // of the picture
  } cases[]{{{1, 4}, 1, 4}, {{1, 4}, 10, 40}, {{1, 2}, 1, 2},    {{1, 1}, 1, 1}, {{2, 1}, 1, 0},
            {{2, 1}, 2, 1}, {{3, 1}, 2, 0},   {{3, 1}, 120, 40}, {{6, 1}, 5, 0}, {{6, 1}, 6, 1},
            {{8, 1}, 7, 0}, {{8, 1}, 8, 1},   {{8, 1}, 320, 40}};
  for (const auto& [zoom, travel, moved] : cases) {
    SCOPED_TRACE(testing::Message() << zoom.Screen << " : " << zoom.Picture << " " << travel);
    Area().Move(603, 301);
    Show(zoom);
    const PixelRect seen = MapToBox(Box, DisplayBounds(Area()));
    const PixelPoint corner = MapToForm(Form, PixelBounds(Box).TopLeft() + seen.TopLeft());
    const int end = corner.X + seen.Width;
    EXPECT_EQ(&Form.Pointer.ControlAt(corner.X, corner.Y), &Area());
    EXPECT_NE(&Form.Pointer.ControlAt(corner.X - 1, corner.Y), &Area());
    EXPECT_EQ(&Form.Pointer.ControlAt(end - 1, corner.Y), &Area());
    EXPECT_NE(&Form.Pointer.ControlAt(end, corner.Y), &Area());
    DragFrom(MapToForm(Box, {608, 308}), travel, 0);
    EXPECT_EQ(Area().Left.Get(), static_cast<float>(603 + moved));
    EXPECT_EQ(Form.MarkCount, moved == 0 ? 1 : 0) << "without travel it is a press";
    ClearSelection(Form);
  }
  DragFrom(MapToForm(Box, {610, 330}), 0, 0, CtrlKey);
  EXPECT_EQ(Marker(Form.ArmyAt(2)), "+2 at 610,314 ffffff plain");
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
