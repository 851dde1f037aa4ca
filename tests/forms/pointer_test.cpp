#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/picturebox.h"
#include "support/scripteddesktop.h"

namespace terramark::forms {
namespace {

/// A picture box of 200 x 100 pixels at 10, 10 with two markers of 20 x 10 at 30, 20 and 40, 25,
/// and a button of 50 x 20 at 300, 10.
class PointerTest : public testing::Test {
 protected:
  PointerTest() {
    Put(Box, Window, 150, 150, 3000, 1500);
    Put(Under, Box, 30, 20, 20, 10);
    Put(Over, Box, 40, 25, 20, 10);
    Put(Button, Window, 4500, 150, 750, 300);
    Box.Picture = BlankPicture(200, 100);
    for (Label* label : {&Under, &Over}) {
      label->MouseDown = [this, label](const MouseEvent& event) {
        if (event.Shift == 0) label->Drag();
      };
      label->MouseUp = [this](const MouseEvent&) { Log += "up "; };
      label->DragDrop = [this, label](const DropEvent& event) {
        Log += &event.Source == label ? "self " : "other ";
      };
    }
    Box.DragDrop = [this](const DropEvent& event) {
      Log += "box " + std::to_string(static_cast<int>(event.X)) + " " +
             std::to_string(static_cast<int>(event.Y));
    };
    Box.MouseUp = [this](const MouseEvent&) { Log += "backdrop "; };
    Button.MouseUp = [this](const MouseEvent& event) {
      Log += "button" + std::to_string(event.Button) + std::to_string(event.Shift) + " ";
    };
    Button.Click = [this](const PlainEvent&) { Log += "click "; };
  }

  void Put(Control& control, Control& container, float left, float top, float width, float height) {
    control.Move(left, top);
    control.Width = width;
    control.Height = height;
    Window.Add(control, container);
  }
  /// Presses at one place and lets go at another; gives what the controls have heard by then.
  std::string Stroke(int x0, int y0, int x1, int y1, std::int16_t button = LeftButton,
                     std::int16_t shift = 0) {
    Pointer.Press(x0, y0, button, shift);
    Pointer.Move(x1, y1, shift);
    Pointer.Release(x1, y1, button, shift);
    return std::exchange(Log, "");
  }

  ScriptedDesktop Screen;
  Form Window{Screen, "Window"};
  PointerRouter& Pointer = Window.Pointer;
  PictureBox Box{"Box"};
  Label Under{"Under"};
  Label Over{"Over"};
  CommandButton Button{"Button"};
  std::string Log;
};

TEST_F(PointerTest, APressReachesTheUppermostEnabledControl) {
  const struct {
    int X, Y;
    Control& Hit;
  } cases[]{{50, 35, Over},  {69, 44, Over}, {49, 35, Under},
            {50, 34, Under}, {70, 44, Box},  {69, 45, Box}};
  for (const auto& [x, y, hit] : cases) EXPECT_EQ(&Pointer.ControlAt(x, y), &hit) << x << " " << y;
  Over.Enabled = false;
  EXPECT_EQ(&Pointer.ControlAt(62, 42), &Box);
  Box.Enabled = false;
  EXPECT_EQ(Stroke(62, 42, 62, 42), "");
}

TEST_F(PointerTest, DropsGoToWhatLiesUnderThePointer) {
  EXPECT_EQ(Stroke(45, 32, 46, 33), "self ");
  EXPECT_EQ(Stroke(45, 32, 65, 42), "other ");
  EXPECT_EQ(Stroke(45, 32, 110, 100), "box 100 90") << "in pixels of the box";
  EXPECT_EQ(Stroke(45, 32, 500, 500), "") << "on the form";
  EXPECT_EQ(Stroke(45, 32, -50, -50), "") << "outside";
}

TEST_F(PointerTest, ACancelledDragDropsNothingAndItsReleaseReachesNobody) {
  Pointer.Press(45, 32, LeftButton, 0);
  Pointer.Move(100, 90, 0);
  ASSERT_TRUE(Pointer.CurrentDrag());
  EXPECT_EQ(Pointer.CurrentDrag()->TopLeft.X, 85);
  Pointer.CancelDrag();
  Pointer.Release(100, 90, LeftButton, 0);
  EXPECT_EQ(Log, "");
  EXPECT_EQ(Stroke(100, 90, 100, 90), "backdrop ") << "the next press is a press again";
}

TEST_F(PointerTest, OtherButtonsLeaveThePressThatHoldsThePointer) {
  Pointer.Press(45, 32, LeftButton, 0);
  Pointer.Press(305, 15, RightButton, ShiftKey);
  Pointer.Release(305, 15, RightButton, ShiftKey);
  EXPECT_TRUE(Pointer.CurrentDrag());
  Pointer.Release(46, 33, LeftButton, 0);
  Under.Drag();
  EXPECT_FALSE(Pointer.CurrentDrag()) << "no button is down";
  EXPECT_EQ(Stroke(45, 32, 400, 400, LeftButton, ShiftKey), "self up ")
      << "the release reaches what was pressed";
}

TEST_F(PointerTest, AButtonActsOnTheReleaseOfAnyButtonInsideIt) {
  EXPECT_EQ(Stroke(310, 15, 320, 20, RightButton, CtrlKey), "button22 ");
  EXPECT_EQ(Stroke(310, 15, 310, 200), "") << "a change of mind";
  EXPECT_EQ(Stroke(310, 15, 320, 20), "button10 click ");
  Pointer.SimulateClick(Button, ShiftKey);
  Button.Enabled = false;
  Pointer.SimulateClick(Button, 0);
  EXPECT_EQ(Stroke(310, 15, 320, 20), "button11 click ");
}

TEST_F(PointerTest, AControlThatGoesTakesItsDragWithIt) {
  {
    Label passing{"passing"};
    Put(passing, Box, 100, 50, 20, 10);
    passing.MouseDown = [&](const MouseEvent&) { passing.Drag(); };
    Pointer.Press(115, 65, LeftButton, 0);
    Pointer.Release(115, 65, LeftButton, 0);
    passing.MouseDown = nullptr;
    Pointer.Press(115, 65, LeftButton, 0);
  }
  EXPECT_FALSE(Pointer.CurrentDrag());
  Pointer.Release(115, 65, LeftButton, 0);
  EXPECT_EQ(Log, "");
}

TEST_F(PointerTest, ALargePictureScrollsAndPlacesStayThoseOfThePicture) {
  Box.Picture = BlankPicture(500, 90);
  EXPECT_EQ(Box.ViewHeight(), 84) << "the bar across takes room";
  EXPECT_TRUE(Box.ScrollsDown());
  Box.ScrollTo(1000, -5);
  EXPECT_EQ(Box.ScrollLeft.Get(), 500 - 184);
  EXPECT_EQ(Box.ScrollTop.Get(), 0);
  Box.ScrollTo(30, 0);
  EXPECT_EQ(Stroke(15, 32, 110, 80), "box 130 70") << "the marker at 30, 20 is at the left edge";
  EXPECT_EQ(&Pointer.ControlAt(100, 100), &Window) << "a scroll bar is no backdrop";
  Pointer.Press(15, 32, LeftButton, 0);
  Pointer.Move(190, 50, 0);
  Pointer.AutoScroll();
  EXPECT_GT(Box.ScrollLeft.Get(), 30);
  Pointer.Move(15, 90, 0);
  for (int i = 0; i < 9; ++i) Pointer.AutoScroll();
  EXPECT_EQ(Box.ScrollLeft.Get(), 0);
  EXPECT_EQ(Box.ScrollTop.Get(), 6) << "no blank ground below the picture";
  const auto scrolled = [&](int x) {
    Box.ScrollTo(0, 0);
    Pointer.Move(x, 50, 0);
    Pointer.AutoScroll();
    return Box.ScrollLeft.Get();
  };
  EXPECT_GT(scrolled(210), 0) << "also from outside the box";
  EXPECT_GT(scrolled(300), scrolled(210)) << "and faster from farther away";
  Pointer.CancelDrag();
  Box.Picture = BlankPicture(90, 500);
  EXPECT_FALSE(Box.ScrollsAcross());
  Box.Picture = BlankPicture(10, 10);
  EXPECT_EQ(Box.ScrollLeft.Get(), 0);
  EXPECT_EQ(Box.Image().Width, 200) << "never smaller than the box";
}

}  // namespace
}  // namespace terramark::forms
