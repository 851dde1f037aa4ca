#include "support/editortest.h"

namespace terramark {
namespace {

class AddTest : public EditorTest {};

TEST_F(AddTest, ANewAreaStandsOnTheOneBeforeItWithItsDefaults) {
  // A number in its second life keeps nothing of the first.
  Form.AreaName(1) = Form.AreaLinks(1) = "old";
  Form.AreaRegion(1) = 7;
  Screen.Draws = {0.5F};
  Click(Form.AddTer, 0, forms::RightButton);
  EXPECT_EQ(Area(1), "Area 1 [  ] 2 R0 +1 at 6,60 ffffff plain");
  EXPECT_EQ(Form.Countx(0).Caption.Get(), " 1");
  EXPECT_EQ(Screen.Seeds, std::vector<float>{75907});
  Drag(Form.ArmyAt(1), 100, 50);
  Click(Form.ArmyAt(1));
  Click(Form.AddTer, forms::CtrlKey | forms::AltKey);
  EXPECT_EQ(Form.ArmyAt(2).Left, 106);
  EXPECT_EQ(Form.CurArea, 1) << "adding leaves the selection";
  EXPECT_NO_THROW(Grip(Form.ArmyAt(2))) << "in front of it";
  Click(Form.AddTer, forms::CtrlKey);
  EXPECT_EQ(Form.ArmyAt(3).Top, 17 / 2 * 15) << "with Ctrl at the event's own place";
}

TEST_F(AddTest, CardSymbolsComeWithTheirUnevenOdds) {
  Screen.Draws = {0, 0.166F, 0.167F, 0.5F, 0.501F, 0.999F};
  MakeMap(6, 0);
  std::string symbols;
  for (std::int16_t i = 1; i <= 6; ++i) symbols += Form.AreaSymbol(i);
  EXPECT_EQ(symbols, "112233");
}

TEST_F(AddTest, ANewRegionBecomesCurrent) {
  Form.RegionArmies(1) = 77;
  Click(Form.AddTer);
  Click(Form.ArmyAt(1));
  EXPECT_EQ(Click(Form.AddCont), "Region Region 1, Areas = 0, armies = 5");
  EXPECT_EQ(Selected(), "A0 R1 1 . *");
  EXPECT_EQ(Region(1), "Region 1 5 armies 256,256,256 Region 1 at 48,163 ffffff current");
  EXPECT_EQ(Form.Continent(1).Width, 8 * 7 + 2) << "as wide as its name";
  EXPECT_EQ(Form.Countx(1).Caption.Get(), " 1");
}

TEST_F(AddTest, BothStopAtTheLimitAndAfterALayoutAboveIt) {
  for (const int from : {96, 98}) {
    while (Form.AreaCount < from) Form.ArmyAt.Load(++Form.AreaCount);
    while (Form.RegionCount < from) Form.Continent.Load(++Form.RegionCount);
    Click(Form.AddTer);
    Click(Form.AddCont);
    ClickMap(300, 200, forms::CtrlKey);
    EXPECT_EQ(Form.AreaCount, from);
    EXPECT_EQ(Form.RegionCount, from);
  }
}

class DeleteTest : public EditorTest {};

TEST_F(DeleteTest, OnlyTheLastAreaGoesAndOnlyWithoutLinks) {
  MakeChain();
  EXPECT_EQ(Click(Form.DelControl), "red: Select a Area/Region to delete");
  Click(Form.ArmyAt(3));
  EXPECT_EQ(Click(Form.DelControl), "red: Can only delete the last Area - Area 6");
  Click(Form.ArmyAt(6));
  EXPECT_EQ(Click(Form.DelControl), "red: Must clear all links before deleting a Area");
  EXPECT_EQ(Selected(), "A6 R0 1 .....* ..") << "the refusal flips the neighbours' marks";
  // Its marks need not show the link: it has lost the look of the current one,
  Click(Form.ArmyAt(6));
  ShiftClick(Form.ArmyAt(6));
  EXPECT_EQ(Delete(), "red: Must clear all links before deleting a Area");
  // or only Area 5 lists it.
  Form.AreaLinks(6) = " ";
  Click(Form.ArmyAt(6));
  EXPECT_EQ(Delete(), "red: Must clear all links before deleting a Area");
  EXPECT_TRUE(Screen.Boxes.empty());
  Form.AreaLinks(6) = "0105";
  Click(Form.ArmyAt(6));
  Click(Form.ClearLink);
  Click(Form.ArmyAt(6));
  Click(Form.DelControl);
  EXPECT_EQ(Form.AreaCount, 6) << "answered No";
  EXPECT_EQ(Delete(), "Area 6 deleted");
  EXPECT_EQ(Screen.Boxes.back(), "Terramark: delete Area# 6");
  EXPECT_EQ(Form.ArmyAt.Find(6), nullptr);
  EXPECT_EQ(Form.Countx(0).Caption.Get(), " 5");
  EXPECT_EQ(Form.CurArea, 6);
  EXPECT_EQ(Click(Form.DelControl), "red: Can only delete the last Area - Area 5");
}

TEST_F(DeleteTest, TheRegionsAboveCloseTheGap) {
  MakeMap(4, 4);
  SetRegion(3, {1, 2});
  SetRegion(4, {4});
  Click(Form.Continent(3));
  EXPECT_EQ(Delete(), "red: Must clear all links before deleting a Region");
  Type(Form.EditText, "East");
  Type(Form.Armypc, "8");
  Click(Form.PlColor(4));
  Form.ColBar(0).Moved(50);
  Click(Form.Continent(2));
  EXPECT_EQ(Delete(), "Region 2 deleted");
  EXPECT_EQ(Screen.Boxes.back(), "Terramark: delete Region# 2");
  EXPECT_EQ(Form.Continent.Find(4), nullptr);
  EXPECT_EQ(Form.Countx(1).Caption.Get(), " 3");
  EXPECT_EQ(Region(2), "East 8 armies 50,256,256 East at 480,40 ffff32 on white")
      << "the look stays with the number";
  EXPECT_EQ(Region(3), "Region 4 5 armies 256,256,256 Region 4 at 480,58 ffffff plain");
  EXPECT_EQ(Form.AreaRegion(1), 2);
  EXPECT_EQ(Form.AreaRegion(4), 3);
  EXPECT_EQ(Form.CurRegion, 4);
  EXPECT_EQ(Delete(), "Region 2 deleted") << "pressed again it asks and does nothing";
  EXPECT_EQ(Screen.Boxes.back(), "Terramark: delete Region# 4");
  EXPECT_EQ(Form.RegionCount, 3);
}

TEST_F(DeleteTest, ClearWholeMapAsksAndEmptiesTheDocumentAndNothingElse) {
  Click(Form.DelAll);
  EXPECT_EQ(Screen.Boxes.size(), 1U) << "also on an empty map";
  MakeChain();
  Form.Text1.Text = "header";
  Click(Form.Continent(2));
  Click(Form.PlColor(1));
  Screen.Answers = {forms::Answer::Yes};
  EXPECT_EQ(Click(Form.DelAll), "");
  EXPECT_EQ(Selected(), "A0 R2 0  ");
  EXPECT_FALSE(Form.RGBFrame.Enabled || Form.ArmyAt.Find(1) || Form.Continent.Find(1));
  EXPECT_EQ(Form.AreaSymbol(1) + Form.RegionName(1) + Form.AreaLinks(99) + Form.AreaName(1),
            "*UNKNOWN* *UNKNOWN*");
  EXPECT_EQ(Form.RegionArmies(99), 5);
  EXPECT_EQ(Form.RegionRGB(0), (Components{256, 256, 256}));
  EXPECT_EQ(Form.AreaCorner(6), 2);
  EXPECT_EQ(Form.Text1.Text.Get(), "");
  EXPECT_EQ(Form.EditText.Text.Get(), "Region 2");
  EXPECT_EQ(Form.Countx(0).Caption.Get(), " 0") << "not left empty once it has counted";
  EXPECT_EQ(Form.Picture1.Picture.Get()->Width, 0);
  EXPECT_EQ(Click(Form.Cvalid), "red: Number of Areas must be more than 1")
      << "the picture is still named";
  Click(Form.RefMap);
  EXPECT_EQ(Form.Picture1.Picture.Get()->Width, 546);
}

}  // namespace
}  // namespace terramark
