#include "shell/backdrop.h"
#include "shell/bars.h"
#include "support/editortest.h"

namespace terramark {
namespace {

using MarkerTest = ChainTest;

TEST_F(MarkerTest, ADragLandsTheGrabbedPointUnderThePointerAndSelectsNothing) {
  Click(Form.ArmyAt(1));
  const std::string message = Message();
  Drag(Form.ArmyAt(3), 150, 100);
  EXPECT_EQ(Marker(Form.ArmyAt(3)), "+3 at 250,124 ffffff plain");
  Drag(Form.ArmyAt(3), -1, 0);
  EXPECT_EQ(Marker(Form.ArmyAt(3)), "+3 at 249,124 ffffff plain");
  Drag(Form.Continent(2), -200, 60, 0, forms::RightButton);
  EXPECT_EQ(Marker(Form.Continent(2)), "Region 2 at 280,82 ffffff plain");
  const forms::PixelPoint corner = forms::InnerOrigin(Form.ArmyAt(4));
  DragFrom({corner.X + 30, corner.Y + 8}, -165, 100);
  EXPECT_EQ(Marker(Form.ArmyAt(4)), "+4 at -20,124 ffffff plain") << "no place is clamped";
  EXPECT_EQ(Selected(), "A1 R0 2 *o.... ..");
  EXPECT_EQ(Message(), message);
}

TEST_F(MarkerTest, ADropOnAnotherMarkerOrControlMovesNothing) {
  for (const forms::Control* target : Form.Controls()) {
    if (!target->Visible || target == &Form.ArmyAt(1) || target == &Form.Picture1) continue;
    Press(CentreOnForm(Form.ArmyAt(1)));
    Release(CentreOnForm(*target));
    ASSERT_EQ(Marker(Form.ArmyAt(1)), "+1 at 10,24 ffffff plain") << NameOf(*target);
  }
  EXPECT_EQ(Marker(Form.Continent(1)), "Region 1 at 480,4 ffffff plain");
}

TEST_F(MarkerTest, PressesGoByButtonAndKeys) {
  Click(Form.ArmyAt(2), forms::CtrlKey);
  EXPECT_EQ(Selected(), "A2 R0 3 o*o... ..") << "Ctrl drags and selects like a plain press";
  Click(Form.ArmyAt(3), forms::ShiftKey | forms::CtrlKey);
  EXPECT_EQ(Form.CurArea, 3) << "only Shift alone marks";
  Press(CentreOnForm(Form.ArmyAt(4)), forms::ShiftKey);
  Release(CentreOnForm(Form.ArmyAt(4)), 0);
  EXPECT_EQ(Form.CurArea, 4) << "Shift let go before the release";
  Click(Form.ArmyAt(1), forms::ShiftKey, forms::MiddleButton);
  EXPECT_EQ(Selected(), "A4 R0 4 o.o*o. ..");
  ShiftClick(Form.Continent(2));
  EXPECT_EQ(Form.CurRegion, 2);
}

TEST_F(MarkerTest, TheRightButtonTurnsTheCornerAndDoesNothingElse) {
  for (const std::string caption : {"^1", " 1^", " 1+", "+1"}) {
    Drag(Form.ArmyAt(1), 40, 40, 0, forms::RightButton);
    EXPECT_EQ(Marker(Form.ArmyAt(1)), caption + " at 10,24 ffffff plain");
  }
  Form.AreaCorner(1) = -7;
  Click(Form.ArmyAt(1), 0, forms::RightButton);
  EXPECT_EQ(Form.ArmyAt(1).Caption.Get(), " 1");
  Click(Form.ArmyAt(1), 0, forms::RightButton);
  EXPECT_EQ(Form.ArmyAt(1).Caption.Get(), "+1") << "a code that names no corner went on from 3";
}

class BackdropTest : public EditorTest {};

TEST_F(BackdropTest, APlainPressRefreshesAndClearsTheSelection) {
  MakeChain();
  Click(Form.Continent(2));
  Form.Text1.SetFocus();
  const int reads = Screen.PictureReads;
  ClickMap(200, 80, forms::CtrlKey | forms::ShiftKey);
  ClickMap(200, 80, forms::AltKey);
  EXPECT_EQ(Screen.PictureReads, reads);
  EXPECT_EQ(Selected(), "A0 R2 1 ...ooo .*");
  ClickMap(5, 300);
  EXPECT_EQ(Screen.PictureReads, reads + 1);
  EXPECT_EQ(Selected(), "A0 R0 0 ...... ..");
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Form.ActiveControl(), &Form.EditText);
}

TEST_F(BackdropTest, RefreshKeepsTheNumbersAndARegionsBackground) {
  MakeChain();
  Click(Form.Continent(1));
  ShiftClick(Form.ArmyAt(6));
  Form.Continent(2).Visible = false;
  std::string whileLoading;
  Screen.Loading = [&] { whileLoading = Marker(Form.ArmyAt(6)); };
  Click(Form.RefMap);
  EXPECT_EQ(whileLoading, "+6 at 235,24 ffffff marked hidden");
  EXPECT_EQ(Selected(), "A0 R1 2 ...... *.");
  EXPECT_EQ(Marker(Form.Continent(1)), "Region 1 at 480,4 ffffff on white");
  EXPECT_EQ(Marker(Form.ArmyAt(6)), "+6 at 235,24 ffffff plain");
  EXPECT_TRUE(Form.Continent(2).Visible);
  EXPECT_EQ(Message(), "");
}

TEST_F(BackdropTest, AnUnreadablePictureIsSaidAndLosesNothing) {
  Click(Form.LoadMap);
  EXPECT_EQ(Screen.PictureReads, 0) << "cancelled";
  EXPECT_EQ(Screen.Filters, std::vector<std::string>{"*.wmf;*.bmp"});
  MakeChain();
  Screen.FileNames.push_back("text.wmf");
  EXPECT_EQ(Click(Form.LoadMap), "red: Cannot read picture text.wmf: gone");
  EXPECT_EQ(Form.PictureFile, "map.bmp");
  EXPECT_EQ(Form.LoadMap.Caption.Get(), "map.bmp");
  EXPECT_EQ(Screen.Entered, std::vector<std::string>{"map.bmp"});
  Screen.Pictures.clear();
  Click(Form.ArmyAt(1));
  EXPECT_EQ(ClickMap(5, 300), "red: Cannot read picture map.bmp: gone")
      << "outlives the blanking of the bar";
  EXPECT_EQ(Form.CurArea, 0);
  EXPECT_EQ(Form.Picture1.Picture.Get()->Width, 546);
  Screen.Loading = [] { throw std::bad_alloc(); };
  EXPECT_EQ(Click(Form.RefMap), "red: Cannot read picture map.bmp: not enough memory");
}

TEST_F(BackdropTest, APictureGoesByItsFullNameOrByItsBareOne) {
  Screen.Pictures["/?/a map"] = BlankPicture(4, 3);
  const auto load = [&](bool nameFits, bool titleFits) {
    Screen.FileNames = {"/?/a map"};
    Screen.FileNameFits = nameFits;
    Screen.FileTitleFits = titleFits;
    Click(Form.LoadMap);
    return Form.PictureFile + " " + Message();
  };
  ShowMessage(Form, "Cannot", ClrRed);
  EXPECT_EQ(load(true, true), "/?/a map red: Cannot");
  EXPECT_EQ(load(false, true), "a map red: Cannot");
  EXPECT_EQ(load(false, false),
            "a map red: Cannot use this file name in a Map Layout: /?/a map "
            "(not all its letters fit)");
  EXPECT_EQ(Screen.Entered, (std::vector<std::string>{"/?/a map", "/?/a map"}));
  EXPECT_EQ(load(true, true), "/?/a map ") << "a text about an earlier picture goes";
  ShowPictureFault(Form, "b.bmp", "gone");
  EXPECT_EQ(load(true, true), "/?/a map ");
}

class ColourPanelTest : public ChainTest {
 protected:
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
  // A row takes the bars unclamped and shows them clamped.
  for (std::int16_t row = 0; row < 4; ++row) {
    Click(Form.PlColor(row));
    Slide(256, 255, 16);
    EXPECT_EQ(Form.PlColor(row).BackColor, 0x0010FFFFU);
  }
  for (const Components& rgb : Form.PlayerRGB) EXPECT_EQ(rgb, (Components{256, 255, 16}));
  EXPECT_EQ(Form.Continent(1).ForeColor, ClrWhite);
}

TEST_F(ColourPanelTest, ARegionsColourReachesItsAreasAndOutlivesTheMarks) {
  Click(Form.Continent(2));
  Click(Form.PlColor(4));
  Slide(10, 20, 30);
  EXPECT_EQ(Region(2), "Region 2 5 armies 10,20,30 Region 2 at 480,22 1e140a on white");
  EXPECT_EQ(Marker(Form.ArmyAt(6)), "+6 at 235,24 1e140a on grey");
  EXPECT_EQ(Form.PlColor(4).BackColor, 0x001E140AU);
  EXPECT_EQ(Form.EditText.ForeColor, 0x001E140AU);
  ClickMap(5, 300);
  EXPECT_EQ(Marker(Form.ArmyAt(6)), "+6 at 235,24 1e140a plain");
  EXPECT_EQ(Form.ArmyAt(3).ForeColor, ClrWhite);
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
  Delete();
  Slide(99, 99, 99);
  EXPECT_EQ(Form.RegionRGB(3), (Components{10, 20, 30}));
  Form.AreaRegion(2) = Form.AreaRegion(3) = Form.AreaRegion(1) = 2;
  Click(Form.Continent(1));
  Click(Form.PlColor(4));
  Delete();
  Slide(99, 99, 99);
  EXPECT_EQ(Form.RegionRGB(1), (Components{256, 256, 256}));
}

}  // namespace
}  // namespace terramark
