#include "support/editortest.h"

namespace terramark {
namespace {

class LinkingTest : public EditorTest {
 protected:
  void SetLinks(std::initializer_list<const char*> links) {
    std::int16_t i = 0;
    for (const char* text : links) Form.AreaLinks(++i) = text;
  }
};

TEST_F(LinkingTest, TheMarkedAreasBecomeTheListAndTheFarSideOnlyGrows) {
  MakeMap(9, 0);
  Form.AreaLinks(5) = "0109";
  Form.AreaLinks(2) = "00";
  Click(Form.ArmyAt(7));
  Click(Form.MakeNeibor);
  EXPECT_EQ(Form.AreaLinks(7), "  ") << "one mark is not enough";
  EXPECT_EQ(Message().substr(0, 5), "Area ") << "and says nothing";
  Mark({9, 5, 2});
  EXPECT_EQ(Click(Form.MakeNeibor), " 3 neighbours set for Area 7 = <02,05,09>");
  EXPECT_EQ(Form.MarkCount, 4);
  EXPECT_EQ(Links(9), "  |0107|  |  |020907|  |03020509|  |0107");
  Mark({5});
  Click(Form.MakeNeibor);
  EXPECT_EQ(Form.AreaLinks(7), "020209");
  EXPECT_EQ(Form.AreaLinks(5), "020907") << "a mark taken off leaves the far side's entry";
}

TEST_F(LinkingTest, WithoutMarkedAreasNothingChanges) {
  MakeChain();
  Click(Form.ArmyAt(2));
  Click(Form.RefMap);
  EXPECT_EQ(Click(Form.MakeNeibor), "red: mark the neighbours first");
  // Nor when the Area that is current has gone.
  ClickMap(300, 200, forms::CtrlKey);
  Click(Form.ArmyAt(7));
  Delete();
  Mark({1, 3});
  EXPECT_EQ(Click(Form.MakeNeibor), "red: mark the neighbours first");
  EXPECT_EQ(Links(3), "0102|020103|020204");
}

TEST_F(LinkingTest, WithNothingCurrentTheListGoesToSlotNought) {
  MakeMap(3, 0);
  Mark({1, 3});
  EXPECT_EQ(Click(Form.MakeNeibor), " 2 neighbours set for Area 0 = <01,03>");
  EXPECT_EQ(Links(3), "0100|  |0100");
  EXPECT_EQ(Form.AreaLinks(0), "020103");
}

TEST_F(LinkingTest, MembershipFollowsTheMarksAndTheColourStartsAgain) {
  MakeChain();
  Click(Form.Continent(2));
  Click(Form.PlColor(4));
  Form.ColBar(0).Moved(99);
  Click(Form.Continent(2));
  Mark({2, 6});
  EXPECT_EQ(Click(Form.SetCont), "Region Region 2 has 3 Areas = <02,04,05>");
  EXPECT_EQ(Region(2), "Region 2 5 armies 256,256,256 Region 2 at 480,22 ffffff plain");
  EXPECT_EQ(Form.PlColor(4).BackColor, 0x00FFFF63U) << "the panel is left alone";
  EXPECT_EQ(Area(6), "Area 6 [0105] 1 R0 +6 at 235,24 ffffff plain");
  EXPECT_EQ(Area(5), "Area 5 [020406] 1 R2 +5 at 190,24 ffffff marked");
  EXPECT_EQ(Area(2), "Area 2 [020103] 1 R2 +2 at 55,24 ffffff marked");
  Mark({2, 4, 5});
  EXPECT_EQ(Click(Form.SetCont), "Region Region 2 has 0 Areas = <>");
  EXPECT_EQ(Area(2), "Area 2 [020103] 1 R0 +2 at 55,24 ffffff plain");
  Click(Form.ArmyAt(4));
  const std::string message = Message();
  EXPECT_EQ(Click(Form.SetCont), message) << "no current Region, no word";
}

TEST_F(LinkingTest, AnAreaLeavesEveryListAndItsRegion) {
  MakeMap(6, 2);
  SetRegion(2, {5});
  SetLinks({"  ", "03123423", "020509", "03030501", "020309", "0105"});
  Form.ArmyAt(5).Tag = "255";
  Click(Form.ArmyAt(5));
  EXPECT_EQ(Click(Form.ClearLink), "all links to Area 5 removed");
  EXPECT_EQ(Links(6), "  |03123423|0109|020301| |  ");
  EXPECT_EQ(Area(5), "Area 5 [ ] 1 R0 +5 at 190,24 ffffff plain");
  EXPECT_EQ(Form.CurArea + Form.MarkCount, 0);
  // Digits across two pairs are no match.
  MakeMap(17, 0);
  SetLinks({"03122304", "03123423", "021234"});
  Form.AreaLinks(23) = "0102";
  Click(Form.ArmyAt(23));
  Click(Form.ClearLink);
  EXPECT_EQ(Links(3), "021204|021234|021234");
}

TEST_F(LinkingTest, ARegionLosesItsAreasNameAndColourButNoLinks) {
  MakeChain();
  Click(Form.Continent(2));
  Type(Form.EditText, "South");
  Type(Form.Armypc, "9");
  Click(Form.PlColor(4));
  Form.ColBar(0).Moved(99);
  EXPECT_EQ(Click(Form.ClearLink), "all links to Region 2 removed");
  EXPECT_EQ(Region(2), "Region 2 9 armies 256,256,256 Region 2 at 480,22 ffffff plain");
  EXPECT_EQ(Area(6), "Area 6 [0105] 1 R0 +6 at 235,24 ffffff plain");
  EXPECT_EQ(Form.CurRegion + Form.MarkCount, 0);
}

TEST_F(LinkingTest, ClearingNeedsAMarkAndSomethingToClear) {
  MakeMap(2, 1);
  EXPECT_EQ(Click(Form.ClearLink), "red: Select a Area/Region to clear");
  Mark({1});
  EXPECT_EQ(Click(Form.ClearLink), "red: Select a Area/Region to clear")
      << "marked, but nothing current";
  Click(Form.Continent(1));
  EXPECT_EQ(Click(Form.ClearLink), "Nothing to clear");
  EXPECT_EQ(Form.CurRegion, 1);
  SetRegion(1, {2});
  Click(Form.ArmyAt(2));
  EXPECT_EQ(Click(Form.ClearLink), "Nothing to clear");
  EXPECT_EQ(Form.AreaRegion(2), 1) << "without neighbours it keeps its Region";
  Link(1, 2);
  ShiftClick(Form.ArmyAt(1));
  EXPECT_EQ(Click(Form.ClearLink), "Nothing to clear") << "the current look is gone";
}

TEST_F(LinkingTest, TwoAreasChangePlacesAndEveryLinkStillJoinsTheSamePlaces) {
  MakeMap(12, 2);
  SetLinks({"020203", "03010304", "020102", "0102", "04122104010"});
  Form.AreaLinks(12) = "0101";
  SetRegion(1, {1, 2});
  SetRegion(2, {12});
  Click(Form.PlColor(4));
  Form.ColBar(0).Moved(0);
  Form.AreaCorner(12) = 1;
  ClickMap(5, 300);
  Mark({12, 1});
  EXPECT_EQ(Click(Form.SwapTer), " 1 and  12 swapped");
  EXPECT_EQ(Links(5), "0112|03120304|021202|0102|04012104120")
      << "the digits that meet are no pair";
  EXPECT_EQ(Area(1), "Area 1 [0112] 1 R2  1^ at 55,50 ffff00 plain");
  EXPECT_EQ(Area(12), "Area 12 [020203] 1 R1 +12 at 10,24 ffffff plain");
  EXPECT_EQ(Form.MarkCount, 2);
  EXPECT_EQ(Click(Form.SwapTer), "red: mark two Areas") << "the marks are gone";
}

TEST_F(LinkingTest, NeighboursSwapAndTheCurrentLookCounts) {
  MakeMap(3, 0);
  Link(1, 2);
  Click(Form.ArmyAt(1));
  EXPECT_EQ(Click(Form.SwapTer), " 1 and  2 swapped");
  EXPECT_EQ(Links(3), "0102|0101|  ");
  ClickMap(5, 300);
  Mark({1, 2, 3});
  EXPECT_EQ(Click(Form.SwapTer), "red: mark two Areas");
  // A Region's Areas are marked but not counted: the two lowest numbers are the pair.
  MakeMap(2, 1);
  SetRegion(1, {4, 5});
  Click(Form.Continent(1));
  Mark({3});
  EXPECT_EQ(Click(Form.SwapTer), " 3 and  4 swapped");
  EXPECT_EQ(Selected(), "A0 R1 2 ....o *");
}

}  // namespace
}  // namespace terramark
