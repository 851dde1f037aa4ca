
#include "support/editortest.h"

namespace terramark {
namespace {

using SelectionTest = ChainTest;

TEST_F(SelectionTest, AClickMakesAnAreaCurrentAndMarksItsNeighbours) {
  Form.AreaSymbol(3) = "2";
  Form.Text1.SetFocus();
  EXPECT_EQ(Click(Form.ArmyAt(3)),
            "Area Area 3, Region = Region 1, neighbours = 2, card symbol = HORSE");
  EXPECT_EQ(Selected(), "A3 R0 3 .o*o.. ..");
  EXPECT_EQ(Inspector(), "Area 3/H/-");
  EXPECT_EQ(Form.EditText.ForeColor, ClrWhite);
  EXPECT_EQ(Form.ActiveControl(), &Form.EditText);
  ClickMap(400, 200, forms::CtrlKey);
  for (const char* symbol : {"9", " ", ""}) {
    Form.AreaSymbol(7) = symbol;
    EXPECT_EQ(Click(Form.ArmyAt(7)),
              "Area Area 7, Region = *UNKNOWN*, neighbours = 0, card symbol = ");
    EXPECT_EQ(Inspector(), "Area 7//-");
  }
  EXPECT_EQ(Selected(), "A7 R0 1 ......* ..");
  // A neighbour without a marker is counted and not marked, and neither is the template.
  Form.AreaLinks(1) = "03000299";
  EXPECT_NE(Click(Form.ArmyAt(1)).find("neighbours = 3,"), std::string::npos);
  EXPECT_EQ(Selected(), "A1 R0 2 *o..... ..");
  EXPECT_EQ(Form.ArmyAt(0).BackColor, ClrBlack);
}

TEST_F(SelectionTest, AClickMakesARegionCurrentAndMarksItsAreas) {
  Form.Continent(2).Tag = "255";
  Form.RegionArmies(2) = 12;
  EXPECT_EQ(Click(Form.Continent(2)), "Region Region 2, Areas = 3, armies = 12");
  EXPECT_EQ(Selected(), "A0 R2 1 ...ooo .*") << "the marks on its Areas are not counted";
  EXPECT_EQ(Inspector(), "Region 2/-/12");
  EXPECT_EQ(Form.EditText.ForeColor, 255U);
  EXPECT_EQ(Form.PlColor(4).BackColor, 255U);
  EXPECT_TRUE(Form.PlColor(4).Enabled);
}

TEST_F(SelectionTest, ShiftClicksFlipSingleMarksAndCountThem) {
  Form.ArmyAt(1).Tag = " 8421631";
  Mark({1, 2});
  EXPECT_EQ(Selected(), "A0 R0 2 oo.... ..") << "nothing need be current";
  EXPECT_EQ(Marker(Form.ArmyAt(1)), "+1 at 10,24 8080ff marked");
  Press(CentreOnForm(Form.ArmyAt(1)), forms::ShiftKey);
  Release(CentreOnForm(Form.ArmyAt(1)), forms::ShiftKey | forms::CtrlKey);
  EXPECT_EQ(Selected(), "A0 R0 1 .o.... ..");
  EXPECT_EQ(Marker(Form.ArmyAt(1)), "+1 at 10,24 8080ff plain");
  Click(Form.Continent(1));
  Mark({1, 2});
  EXPECT_EQ(Selected(), "A0 R1 -1 ..o... *.") << "the count may fall below 0";
  Click(Form.PlColor(1));
  ASSERT_TRUE(Form.RGBFrame.Enabled);
  ShiftClick(Form.ArmyAt(1));
  EXPECT_FALSE(Form.RGBFrame.Enabled) << "a flipped mark takes the colour target away";
  EXPECT_EQ(Form.RGBFrame.Tag.Get(), "-1");
}

TEST_F(SelectionTest, ArrowKeysWalkRoundTheEndsFromAMarkerThatIsMarked) {
  Click(Form.ArmyAt(6));
  Key(forms::KeyUpArrow);
  EXPECT_EQ(Selected(), "A1 R0 2 *o.... ..");
  Key(forms::KeyDownArrow);
  Key(forms::KeyDownArrow);
  EXPECT_EQ(Selected(), "A5 R0 3 ...o*o ..");
  Key(forms::KeyUpArrow);
  EXPECT_EQ(Form.CurArea, 6);
  Click(Form.Continent(1));
  Key(forms::KeyDownArrow);
  EXPECT_EQ(Selected(), "A0 R2 1 ...ooo .*");
  Key(37);
  EXPECT_EQ(Form.CurRegion, 2);
  ClickMap(300, 200, forms::CtrlKey);
  Click(Form.ArmyAt(7));
  ShiftClick(Form.ArmyAt(7));
  Key(forms::KeyUpArrow);
  EXPECT_EQ(Selected(), "A7 R0 0 ....... ..") << "the only mark is gone";
  Click(Form.ArmyAt(7));
  Delete();
  Key(forms::KeyUpArrow);
  EXPECT_EQ(Selected(), "A7 R0 1 ...... ..") << "its marker is gone";
}

using InspectorTest = ChainTest;

TEST_F(InspectorTest, NamesGoStraightIntoTheDocument) {
  Form.AreaSymbol(2) = "3";
  Click(Form.ArmyAt(2));
  Type(Form.EditText, "Lake, North");
  EXPECT_EQ(Form.AreaName(2), "Lake, North");
  EXPECT_EQ(Message(), " 2: Lake, North (S) in Region Region 1");
  Type(Form.EditText, "");
  EXPECT_EQ(Form.AreaName(2), "*UNKNOWN*");
  EXPECT_EQ(Form.EditText.Text.Get(), "");
  Click(Form.Continent(1));
  Type(Form.EditText, "seventeen letters");
  EXPECT_EQ(Form.RegionName(1), "seventeen letter");
  EXPECT_EQ(Form.Continent(1).Caption.Get(), "seventeen letter");
  EXPECT_EQ(Form.AreaName(2), "*UNKNOWN*") << "filling the box for the Region is no edit";
  ClickMap(5, 300);
  Type(Form.EditText, "nobody");
  EXPECT_EQ(Form.RegionName(1), "seventeen letter");
}

TEST_F(InspectorTest, CardSymbolsAreTypedByTheirLetters) {
  Click(Form.ArmyAt(1));
  for (const auto& [typed, symbol] : std::initializer_list<std::pair<const char*, const char*>>{
           {"g", "1"}, {"H", "2"}, {"s", "3"}, {"x", "9"}, {"Q", "9"}, {"2", "9"}}) {
    Type(Form.Symb, "");
    Type(Form.Symb, typed);
    EXPECT_EQ(Form.AreaSymbol(1), symbol) << typed;
    EXPECT_EQ(Form.Symb.Text.Get(), typed);
  }
  EXPECT_EQ(Message(), "Area Card Symbol for Area Area 1 set to X");
  Form.AreaSymbol(1) = "1rest";
  Type(Form.Symb, "h");
  EXPECT_EQ(Form.AreaSymbol(1), "2rest");
}

TEST_F(InspectorTest, ArmiesOutsideTheirRangeGiveWayToTheLastText) {
  const struct {
    const char* Typed;
    const char* Shown;
    int Armies;
  } cases[] = {{"7", "7", 7},   {"7x", "7x", 7},  {"99", "99", 99}, {"0", "99", 99}, {"", "99", 99},
               {"x", "99", 99}, {"-5", "99", 99}, {".9", ".9", 1},  {".5", ".5", 0}};
  Click(Form.Continent(1));
  Form.Focus(&Form.Armypc);
  for (const auto& c : cases) {
    Form.CharacterTyped();
    Replace(Form.Armypc, c.Typed);
    EXPECT_EQ(Form.Armypc.Text.Get(), c.Shown) << c.Typed;
    EXPECT_EQ(Form.RegionArmies(1), c.Armies) << c.Typed;
  }
}

TEST_F(InspectorTest, TheLastArmiesStayOnShowWithoutARegionAndWriteNothing) {
  Click(Form.Continent(2));
  Type(Form.Armypc, "42");
  Click(Form.ArmyAt(1));
  EXPECT_EQ(Form.Armypc.Text.Get(), "4") << "what stood before the last key";
  EXPECT_EQ(Form.RegionArmies(2), 42);
  EXPECT_EQ(Form.RegionArmies(1), 5);
  Form.KeyPressed({46, 0});
  Form.Armypc.Enabled = true;
  Replace(Form.Armypc, "");
  EXPECT_EQ(Form.Armypc.Text.Get(), "4") << "a key without a character counts too";
  Form.RegionArmies(1) = 0;
  Click(Form.Continent(1));
  EXPECT_EQ(Form.RegionArmies(1), 4) << "no armies from a layout give way as well";
}

TEST_F(InspectorTest, EditsOfSomethingGoneDoNothing) {
  Click(Form.AddCont);
  Delete();
  ASSERT_EQ(Form.CurRegion, 3);
  const std::string message = Message();
  Type(Form.EditText, "ghost");
  Type(Form.Armypc, "9");
  EXPECT_EQ(Form.RegionName(3), "Region 3");
  EXPECT_EQ(Form.RegionArmies(3), 5);
  EXPECT_EQ(Message(), message);
}

}  // namespace
}  // namespace terramark
