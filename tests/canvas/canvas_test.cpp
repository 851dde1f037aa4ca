#include "support/editortest.h"

namespace terramark {
namespace {

class MarkerTest : public EditorTest {
 protected:
  MarkerTest() { MakeChain(); }
  void ExpectPlace(const forms::Label& marker, float left, float top) const {
    EXPECT_EQ(marker.Left, left);
    EXPECT_EQ(marker.Top, top);
  }
};

TEST_F(MarkerTest, ADragLandsTheGrabbedPointUnderThePointer) {
  Click(Form.ArmyAt(1));
  const std::string message = Message();
  Drag(Form.ArmyAt(3), 150, 100);
  ExpectPlace(Form.ArmyAt(3), 250, 124);
  Drag(Form.ArmyAt(3), -1, 0);
  ExpectPlace(Form.ArmyAt(3), 249, 124);
  Drag(Form.Continent(2), -200, 60, 0, forms::RightButton);
  ExpectPlace(Form.Continent(2), 280, 82);
  EXPECT_EQ(Form.CurArea, 1) << "moving selects nothing";
  EXPECT_EQ(Message(), message);
}

TEST_F(MarkerTest, NoPlaceIsClamped) {
  Form.ArmyAt(1).Move(100, 200);
  const forms::PixelPoint origin = forms::InnerOrigin(Form.ArmyAt(1));
  Press({origin.X + 30, origin.Y + 8});
  Release({origin.X + 30 - 120, origin.Y + 8});
  ExpectPlace(Form.ArmyAt(1), -20, 200);
}

TEST_F(MarkerTest, ADropOnAnotherMarkerOrControlMovesNothing) {
  const float left = Form.ArmyAt(1).Left;
  const float top = Form.ArmyAt(1).Top;
  Form.Continent(1).Move(300, 200);
  const forms::PixelPoint from = Middle(Form.ArmyAt(1));
  const forms::Control* targets[] = {&Form.ArmyAt(2), &Form.Continent(1), &Form.SetCont,
                                     &Form.Frame1};
  for (const forms::Control* target : targets) {
    Press(from);
    Release(Middle(*target));
    ExpectPlace(Form.ArmyAt(1), left, top);
    ExpectPlace(Form.Continent(1), 300, 200);
  }
  EXPECT_EQ(Form.CurArea, 0);
}

TEST_F(MarkerTest, PressesGoByButtonAndKeys) {
  Click(Form.ArmyAt(2), forms::CtrlKey);
  EXPECT_EQ(Form.CurArea, 2) << "Ctrl drags and selects like a plain press";
  EXPECT_EQ(Form.AreaCount, 6);
  Click(Form.ArmyAt(3), forms::ShiftKey | forms::CtrlKey);
  EXPECT_EQ(Form.CurArea, 3) << "only Shift alone marks";
  Press(Middle(Form.ArmyAt(4)), forms::ShiftKey);
  Release(Middle(Form.ArmyAt(4)), 0);
  EXPECT_EQ(Form.CurArea, 4) << "Shift let go before the release";
  Click(Form.ArmyAt(1), forms::ShiftKey, forms::MiddleButton);
  EXPECT_EQ(Look(1), ClrGrey);
  ShiftClick(Form.Continent(2));
  EXPECT_EQ(Form.CurRegion, 2);
}

TEST_F(MarkerTest, TheRightButtonTurnsTheCornerAndDoesNothingElse) {
  const std::string captions[] = {"^1", " 1^", " 1+", "+1"};
  for (const std::string& caption : captions) {
    Drag(Form.ArmyAt(1), 40, 40, 0, forms::RightButton);
    EXPECT_EQ(Form.ArmyAt(1).Caption.Get(), caption);
  }
  EXPECT_EQ(Form.AreaCorner(1), 2);
  ExpectPlace(Form.ArmyAt(1), 10, 24);
  EXPECT_EQ(Form.CurArea, 0);
  Form.AreaCorner(1) = -7;
  Click(Form.ArmyAt(1), 0, forms::RightButton);
  EXPECT_EQ(Form.ArmyAt(1).Caption.Get(), " 1");
  Click(Form.ArmyAt(1), 0, forms::RightButton);
  EXPECT_EQ(Form.ArmyAt(1).Caption.Get(), "+1") << "a code that names no corner went on from 3";
}

class BackdropTest : public EditorTest {};

TEST_F(BackdropTest, ACtrlPressAddsAnAreaWhoseFillPointIsThePointPressed) {
  ClickMap(100, 80, forms::CtrlKey);
  EXPECT_EQ(Form.ArmyAt(1).Left, 100);
  EXPECT_EQ(Form.ArmyAt(1).Top, 64);
  ClickMap(200, 80, forms::CtrlKey | forms::ShiftKey);
  ClickMap(200, 80, forms::AltKey);
  EXPECT_EQ(Form.AreaCount, 1);
}

TEST_F(BackdropTest, APlainPressRefreshesAndClearsTheSelection) {
  MakeChain();
  Click(Form.Continent(1));
  Form.Text1.SetFocus();
  const int reads = Screen.PictureReads;
  ClickMap(5, 300);
  EXPECT_EQ(Screen.PictureReads, reads + 1);
  EXPECT_EQ(Form.CurRegion, 0);
  EXPECT_EQ(Form.Continent(1).BackColor, ClrBlack);
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Form.ActiveControl(), &Form.EditText);
}

TEST_F(BackdropTest, RefreshKeepsTheNumbersAndARegionsBackground) {
  MakeChain();
  Click(Form.Continent(1));
  ShiftClick(Form.ArmyAt(6));
  Form.Continent(2).Visible = false;
  Click(Form.RefMap);
  EXPECT_EQ(Form.CurRegion, 1);
  EXPECT_EQ(Form.MarkCount, 2);
  EXPECT_EQ(Region(1), "Region 1 5 armies 256,256,256 Region 1 at 480,4 ffffff on white");
  EXPECT_EQ(Area(1), "Area 1 [0102] 1 R1 +1 at 10,24 ffffff plain");
  EXPECT_EQ(Look(6), ClrBlack);
  EXPECT_TRUE(Form.Continent(2).Visible);
  EXPECT_EQ(Message(), "");
}

TEST_F(BackdropTest, AnUnreadablePictureIsSaidAndLosesNothing) {
  Click(Form.LoadMap);
  EXPECT_EQ(Form.PictureFile, "") << "cancelled";
  EXPECT_EQ(Screen.Filters, std::vector<std::string>{"*.wmf;*.bmp"});
  MakeChain();
  Screen.FileNames.push_back("text.wmf");
  Click(Form.LoadMap);
  EXPECT_EQ(Message(), "red: Cannot read picture text.wmf");
  EXPECT_EQ(Form.PictureFile, "map.bmp");
  EXPECT_EQ(Form.LoadMap.Caption.Get(), "map.bmp");
  Screen.Pictures.clear();
  Click(Form.ArmyAt(1));
  ClickMap(5, 300);
  EXPECT_EQ(Message(), "red: Cannot read picture map.bmp") << "outlives the blanking of the bar";
  EXPECT_EQ(Form.CurArea, 0);
  EXPECT_EQ(Form.Picture1.Picture.Get()->Width, 546);
  Click(Form.RefMap);
  EXPECT_EQ(Message(), "red: Cannot read picture map.bmp");
}

class ColourPanelTest : public EditorTest {
 protected:
  ColourPanelTest() { MakeChain(); }
  void DeleteCurrent() {
    Screen.Answers.push_back(forms::Answer::Yes);
    Click(Form.DelControl);
  }
  void Slide(int red, int green, int blue) {
    Form.ColBar(0).Moved(red);
    Form.ColBar(1).Moved(green);
    Form.ColBar(2).Moved(blue);
  }
};

TEST_F(ColourPanelTest, AButtonLoadsTheBarsAndChangesNoColour) {
  Slide(1, 2, 3);
  EXPECT_EQ(Form.ColBar(0).Value.Get(), 0) << "no target, no movement";
  Form.PlayerRGB[2] = {300, -5, 40};
  Click(Form.PlColor(2));
  EXPECT_EQ(Form.ColBar(0).Value.Get(), 256);
  EXPECT_EQ(Form.ColBar(1).Value.Get(), 0);
  EXPECT_EQ(Form.PlayerRGB[2], (Components{300, -5, 40}));
  Form.ColBar(2).Moved(41);
  EXPECT_EQ(Form.PlayerRGB[2], (Components{256, 0, 41}));
}

TEST_F(ColourPanelTest, ARowTakesTheBarsUnclampedAndShowsThemClamped) {
  for (std::int16_t row = 0; row < 4; ++row) {
    Click(Form.PlColor(row));
    Slide(256, 255, 16);
    EXPECT_EQ(Form.PlayerRGB[static_cast<std::size_t>(row)], (Components{256, 255, 16}));
    EXPECT_EQ(Form.PlColor(row).BackColor, 0x0010FFFFU);
  }
  EXPECT_EQ(Form.PlayerRGB[0], (Components{256, 255, 16})) << "loading the bars wrote nothing";
  EXPECT_EQ(Form.Continent(1).ForeColor, ClrWhite);
}

TEST_F(ColourPanelTest, ARegionsColourReachesItsAreasAndOutlivesTheMarks) {
  Click(Form.Continent(1));
  Click(Form.PlColor(4));
  Slide(10, 20, 30);
  EXPECT_EQ(Form.RegionRGB(1), (Components{10, 20, 30}));
  EXPECT_EQ(Form.Continent(1).Tag.Get(), "1971210");
  EXPECT_EQ(Area(2), "Area 2 [020103] 1 R1 +2 at 55,24 1e140a on grey");
  EXPECT_EQ(Form.PlColor(4).BackColor, 0x001E140AU);
  EXPECT_EQ(Form.EditText.ForeColor, 0x001E140AU);
  ClickMap(5, 300);
  EXPECT_EQ(Area(2), "Area 2 [020103] 1 R1 +2 at 55,24 1e140a plain");
  EXPECT_EQ(Form.ArmyAt(4).ForeColor, ClrWhite);
  EXPECT_FALSE(Form.RGBFrame.Enabled);
}

TEST_F(ColourPanelTest, ARegionWithoutAreasLeavesTheNameAsItWas) {
  Click(Form.AddCont);
  Click(Form.PlColor(4));
  const forms::Color before = Form.EditText.ForeColor;
  Slide(10, 20, 30);
  EXPECT_EQ(Form.Continent(3).ForeColor, 0x001E140AU);
  EXPECT_EQ(Form.EditText.ForeColor, before);
  // Deleted, it takes no more colours, and neither does the one that gets its number.
  DeleteCurrent();
  Slide(99, 99, 99);
  EXPECT_EQ(Form.RegionRGB(3), (Components{10, 20, 30}));
  Form.AreaRegion(2) = Form.AreaRegion(3) = Form.AreaRegion(1) = 2;
  Click(Form.Continent(1));
  Click(Form.PlColor(4));
  DeleteCurrent();
  Slide(99, 99, 99);
  EXPECT_EQ(Form.RegionRGB(1), (Components{256, 256, 256}));
}

}  // namespace
}  // namespace terramark
