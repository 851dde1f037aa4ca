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
  EXPECT_EQ(Form.AreaCorner(1), 2);
  EXPECT_EQ(Form.Countx(0).Caption.Get(), " 1");
  EXPECT_EQ(Screen.Seeds, std::vector<float>{75907});
  Drag(Form.ArmyAt(1), 100, 50);
  Click(Form.ArmyAt(1));
  Click(Form.AddTer, forms::CtrlKey | forms::AltKey);
  EXPECT_EQ(Form.ArmyAt(2).Left, 106);
  EXPECT_EQ(Form.CurArea, 1) << "adding leaves the selection";
  EXPECT_EQ(&Form.Pointer.Under(Middle(Form.ArmyAt(1)).X, Middle(Form.ArmyAt(1)).Y),
            &Form.ArmyAt(2));
  Click(Form.AddTer, forms::CtrlKey);
  EXPECT_EQ(Form.ArmyAt(3).Top, 17 / 2 * 15) << "with Ctrl at the event's own place";
}

TEST_F(AddTest, CardSymbolsComeWithTheirUnevenOdds) {
  Screen.Draws = {0, 0.166F, 0.167F, 0.5F, 0.501F, 0.999F};
  std::string symbols;
  for (std::int16_t i = 1; i <= 6; ++i) {
    Click(Form.AddTer);
    symbols += Form.AreaSymbol(i);
  }
  EXPECT_EQ(symbols, "112233");
}

TEST_F(AddTest, ANewRegionBecomesCurrent) {
  Form.RegionArmies(1) = 77;
  Click(Form.AddTer);
  Click(Form.ArmyAt(1));
  Click(Form.AddCont);
  EXPECT_EQ(Selected(), "A0 R1 1 . *");
  EXPECT_EQ(Region(1), "Region 1 5 armies 256,256,256 Region 1 at 48,163 ffffff current");
  EXPECT_EQ(Form.Continent(1).Width, 8 * 7 + 2) << "as wide as its name";
  EXPECT_EQ(Form.Countx(1).Caption.Get(), " 1");
  EXPECT_EQ(Message(), "Region Region 1, Areas = 0, armies = 5");
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
  EXPECT_TRUE(Screen.Boxes.empty());
  Click(Form.ArmyAt(6));
  Click(Form.ClearLink);
  Click(Form.ArmyAt(6));
  Click(Form.DelControl);
  EXPECT_EQ(Form.AreaCount, 6) << "answered No";
  Delete();
  EXPECT_EQ(Screen.Boxes.back(), "Terramark: delete Area# 6");
  EXPECT_EQ(Message(), "Area 6 deleted");
  EXPECT_EQ(Form.ArmyAt.Find(6), nullptr);
  EXPECT_EQ(Form.Countx(0).Caption.Get(), " 5");
  EXPECT_EQ(Form.CurArea, 6);
  EXPECT_EQ(Click(Form.DelControl), "red: Can only delete the last Area - Area 5");
}

TEST_F(DeleteTest, AnAreaStillListedSomewhereStays) {
  MakeChain();
  // Seen neither by its marks: it has lost the look of the current one,
  Click(Form.ArmyAt(6));
  ShiftClick(Form.ArmyAt(6));
  EXPECT_EQ(Delete(), "red: Must clear all links before deleting a Area");
  // nor in its own list: only Area 5 lists it.
  Form.AreaLinks(6) = " ";
  Click(Form.ArmyAt(6));
  EXPECT_EQ(Delete(), "red: Must clear all links before deleting a Area");
  EXPECT_EQ(Form.AreaCount, 6);
  EXPECT_TRUE(Screen.Boxes.empty());
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
  Delete();
  EXPECT_EQ(Screen.Boxes.back(), "Terramark: delete Region# 2");
  EXPECT_EQ(Message(), "Region 2 deleted");
  EXPECT_EQ(Form.Continent.Find(4), nullptr);
  EXPECT_EQ(Form.Countx(1).Caption.Get(), " 3");
  EXPECT_EQ(Region(2), "East 8 armies 50,256,256 East at 480,40 ffff32 on white")
      << "the look stays with the number";
  EXPECT_EQ(Region(3), "Region 4 5 armies 256,256,256 Region 4 at 480,58 ffffff plain");
  EXPECT_EQ(Form.AreaRegion(1), 2);
  EXPECT_EQ(Form.AreaRegion(4), 3);
  EXPECT_EQ(Form.CurRegion, 4);
  Delete();
  EXPECT_EQ(Screen.Boxes.back(), "Terramark: delete Region# 4");
  EXPECT_EQ(Form.RegionCount, 3) << "pressed again it asks and does nothing";
  EXPECT_EQ(Message(), "Region 2 deleted");
}

TEST_F(DeleteTest, ClearWholeMapAsksAndKeepsTheFileNames) {
  Click(Form.DelAll);
  EXPECT_EQ(Screen.Boxes.size(), 1U) << "also on an empty map";
  MakeChain();
  Click(Form.ArmyAt(2));
  Screen.Answers = {forms::Answer::Yes};
  Click(Form.DelAll);
  EXPECT_EQ(Selected(), "A2 R0 0  ");
  EXPECT_EQ(Form.ArmyAt.Find(6), nullptr);
  EXPECT_EQ(Form.Continent.Find(2), nullptr);
  EXPECT_EQ(Form.PictureFile, "map.bmp");
  EXPECT_EQ(Form.Picture1.Picture.Get()->Width, 0);
  EXPECT_EQ(Click(Form.Cvalid), "red: Number of Areas must be more than 1")
      << "the picture is still named";
  Click(Form.RefMap);
  EXPECT_EQ(Form.Picture1.Picture.Get()->Width, 546);
}

}  // namespace
}  // namespace terramark
