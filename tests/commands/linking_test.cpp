#include "support/editortest.h"

namespace terramark {
namespace {

class LinkingTest : public EditorTest {
 protected:
  void SetLinks(std::initializer_list<const char*> links) {
    std::int16_t i = 1;
    for (const char* text : links) Form.AreaLinks(i++) = text;
  }
  void Mark(std::initializer_list<std::int16_t> areas) {
    for (const std::int16_t i : areas) ShiftClick(Form.ArmyAt(i));
  }
};

class SetNeighboursTest : public LinkingTest {};

TEST_F(SetNeighboursTest, TheMarkedAreasBecomeTheListAndTheFarSideOnlyGrows) {
  MakeMap(9, 0);
  Form.AreaLinks(5) = "0109";
  Form.AreaLinks(2) = "00";
  Click(Form.ArmyAt(7));
  Click(Form.MakeNeibor);
  EXPECT_EQ(Form.AreaLinks(7), "  ") << "one mark is not enough";
  EXPECT_EQ(Message().substr(0, 5), "Area ") << "and says nothing";
  Mark({9, 5, 2});
  Click(Form.MakeNeibor);
  EXPECT_EQ(Message(), " 3 neighbours set for Area 7 = <02,05,09>");
  EXPECT_EQ(MessageColour(), ClrGreen);
  EXPECT_EQ(Form.MarkCount, 4);
  EXPECT_EQ(Links(9), "  |0107|  |  |020907|  |03020509|  |0107");
  Mark({5});
  Click(Form.MakeNeibor);
  EXPECT_EQ(Form.AreaLinks(7), "020209");
  EXPECT_EQ(Form.AreaLinks(5), "020907") << "a mark taken off leaves the far side's entry";
}

TEST_F(SetNeighboursTest, WithoutMarkedAreasNothingChanges) {
  MakeChain();
  Click(Form.ArmyAt(2));
  Click(Form.RefMap);
  Click(Form.MakeNeibor);
  EXPECT_EQ(Message(), "mark the neighbours first");
  EXPECT_EQ(MessageColour(), ClrRed);
  EXPECT_EQ(Form.AreaLinks(2), "020103");
}

TEST_F(SetNeighboursTest, WithNothingCurrentTheListGoesToSlotNought) {
  MakeMap(3, 0);
  Mark({1, 3});
  Click(Form.MakeNeibor);
  EXPECT_EQ(Links(3), "0100|  |0100");
  EXPECT_EQ(Form.AreaLinks(0), "020103");
  EXPECT_EQ(Message(), " 2 neighbours set for Area 0 = <01,03>");
}

class SetRegionTest : public LinkingTest {};

TEST_F(SetRegionTest, MembershipFollowsTheMarksAndTheColourStartsAgain) {
  MakeChain();
  Click(Form.Continent(1));
  Click(Form.PlColor(4));
  Form.ColBar(0).Moved(99);
  Click(Form.Continent(1));
  Mark({1, 5});
  Click(Form.SetCont);
  EXPECT_EQ(Message(), "Region Region 1 has 3 Areas = <02,03,05>");
  EXPECT_EQ(Form.AreaRegion(1), 0);
  EXPECT_EQ(Look(1), ClrBlack);
  EXPECT_EQ(Form.AreaRegion(5), 1);
  EXPECT_EQ(Look(5), ClrGrey);
  EXPECT_EQ(Form.RegionRGB(1), (Components{256, 256, 256}));
  EXPECT_EQ(Form.Continent(1).BackColor, ClrBlack) << "plain, though still current";
  EXPECT_EQ(Form.CurRegion, 1);
  Mark({2, 3, 5});
  Click(Form.SetCont);
  EXPECT_EQ(Message(), "Region Region 1 has 0 Areas = <>");
  Click(Form.ArmyAt(4));
  const std::string message = Message();
  Click(Form.SetCont);
  EXPECT_EQ(Message(), message) << "no current Region, no word";
}

class ClearLinksTest : public LinkingTest {};

TEST_F(ClearLinksTest, AnAreaLeavesEveryListAndItsRegion) {
  MakeMap(6, 2);
  SetRegion(2, {5});
  SetLinks({"  ", "03123423", "020509", "03030501", "020309", "0105"});
  Form.ArmyAt(5).Tag = "255";
  Click(Form.ArmyAt(5));
  Click(Form.ClearLink);
  EXPECT_EQ(Links(6), "  |03123423|0109|020301| |  ");
  EXPECT_EQ(Form.AreaRegion(5), 0);
  EXPECT_EQ(Form.ArmyAt(5).ForeColor, ClrWhite);
  EXPECT_EQ(Form.ArmyAt(5).Tag.Get(), " 16777215");
  EXPECT_EQ(Message(), "all links to Area 5 removed");
  EXPECT_EQ(Form.CurArea + Form.MarkCount, 0);
}

TEST_F(ClearLinksTest, DigitsAcrossTwoPairsAreNoMatch) {
  MakeMap(25, 0);
  Form.AreaLinks(1) = "03122304";
  Form.AreaLinks(2) = "03123423";
  Form.AreaLinks(23) = "0102";
  Form.AreaLinks(9) = "021234";
  Click(Form.ArmyAt(23));
  Click(Form.ClearLink);
  EXPECT_EQ(Form.AreaLinks(1), "021204");
  EXPECT_EQ(Form.AreaLinks(2), "021234");
  EXPECT_EQ(Form.AreaLinks(9), "021234");
}

TEST_F(ClearLinksTest, ARegionLosesItsAreasNameAndColourButNoLinks) {
  MakeChain();
  Click(Form.Continent(2));
  Type(Form.EditText, "South");
  Type(Form.Armypc, "9");
  Click(Form.ClearLink);
  EXPECT_EQ(Message(), "all links to Region 2 removed");
  EXPECT_EQ(Form.RegionName(2), "Region 2");
  EXPECT_EQ(Form.RegionArmies(2), 9);
  EXPECT_EQ(Form.RegionCount, 2);
  EXPECT_EQ(Form.AreaRegion(4), 0);
  EXPECT_EQ(Form.AreaLinks(4), "020305");
  EXPECT_EQ(Form.Continent(2).BackColor, ClrBlack);
}

TEST_F(ClearLinksTest, NeedsAMarkAndSomethingToClear) {
  MakeMap(2, 1);
  Click(Form.ClearLink);
  EXPECT_EQ(Message(), "Select a Area/Region to clear");
  EXPECT_EQ(MessageColour(), ClrRed);
  Mark({1});
  Click(Form.ClearLink);
  EXPECT_EQ(Message(), "Select a Area/Region to clear") << "marked, but nothing current";
  Click(Form.Continent(1));
  Click(Form.ClearLink);
  EXPECT_EQ(Message(), "Nothing to clear");
  EXPECT_EQ(Form.CurRegion, 1);
  SetRegion(1, {2});
  Click(Form.ArmyAt(2));
  Click(Form.ClearLink);
  EXPECT_EQ(Message(), "Nothing to clear");
  EXPECT_EQ(Form.AreaRegion(2), 1) << "without neighbours it keeps its Region";
}

class SwapTest : public LinkingTest {};

TEST_F(SwapTest, TwoAreasChangePlacesAndEveryLinkStillJoinsTheSamePlaces) {
  MakeMap(21, 2);
  SetLinks({"020203", "03010304", "020102", "0102"});
  Form.AreaLinks(20) = "03212001";
  SetRegion(1, {1, 2});
  SetRegion(2, {4});
  Form.Continent(2).ForeColor = 255;
  Form.Continent(2).Tag = "255";
  Form.AreaCorner(4) = 1;
  ClickMap(5, 300);
  Mark({4, 1});
  const float left = Form.ArmyAt(4).Left;
  Click(Form.SwapTer);
  EXPECT_EQ(Message(), " 1 and  4 swapped");
  EXPECT_EQ(Links(4), "0102|03040301|020402|020203");
  EXPECT_EQ(Form.AreaLinks(20), "03212004");
  EXPECT_EQ(Form.AreaRegion(1), 2);
  EXPECT_EQ(Form.AreaRegion(4), 1);
  EXPECT_EQ(Form.ArmyAt(1).Left, left);
  EXPECT_EQ(Form.ArmyAt(1).ForeColor, 255U);
  EXPECT_EQ(Form.ArmyAt(1).Tag.Get(), "255");
  EXPECT_EQ(Form.ArmyAt(1).Caption.Get(), " 1^");
  EXPECT_EQ(Form.ArmyAt(4).Caption.Get(), "+4");
  EXPECT_EQ(Form.AreaName(1), "Area 1");
  EXPECT_EQ(Form.MarkCount, 2);
  Click(Form.SwapTer);
  EXPECT_EQ(Message(), "mark two Areas") << "the marks are gone";
}

TEST_F(SwapTest, NeighboursSwapAndTheCurrentLookCounts) {
  MakeMap(3, 0);
  Link(1, 2);
  Click(Form.ArmyAt(1));
  Click(Form.SwapTer);
  EXPECT_EQ(Links(3), "0102|0101|  ");
  EXPECT_EQ(Message(), " 1 and  2 swapped");
  ClickMap(5, 300);
  Mark({1, 2, 3});
  Click(Form.SwapTer);
  EXPECT_EQ(Message(), "mark two Areas");
}

TEST_F(SwapTest, PairsAreComparedWhole) {
  MakeMap(21, 0);
  Form.AreaLinks(3) = "03212012";
  Mark({12, 13});
  Click(Form.SwapTer);
  EXPECT_EQ(Form.AreaLinks(3), "03212013");
}

}  // namespace
}  // namespace terramark
