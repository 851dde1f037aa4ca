#include "support/editortest.h"
#include "validation/rules.h"

namespace terramark {
namespace {

/// Sets some of the link strings, or of the Regions, of a map.
void Links(Tables& t, std::initializer_list<std::pair<std::int16_t, const char*>> links) {
  for (const auto& [i, text] : links) t.AreaLinks(i) = text;
}
void Regions(Tables& t, std::initializer_list<std::int16_t> areas, std::int16_t region) {
  for (const std::int16_t i : areas) t.AreaRegion(i) = region;
}

// Where it can be, a map has the fault of a later rule as well, which must wait.
// clang-format off
const struct {
  int Status;
  const char* Message;
  void (*Spoil)(Tables&);
} RuleCases[] = {
    {0,  "This map has no errors", [](Tables&) {}},
    {0,  "This map has no errors", [](Tables& t) { Links(t, {{1, "020102"}}); Regions(t, {4}, 1); }},
    {15, "No Map file (.WMF/.BMP)", [](Tables& t) { t = Tables(); }},
    {1,  "Number of Areas must be more than 1", [](Tables& t) { t.AreaCount = t.RegionCount = 1; }},
    {2,  "Number of Regions must be more than 1", [](Tables& t) { t.AreaCount = 4; t.RegionCount = 1; }},
    {10, "Number of Areas must be divisible by 2 and 3", [](Tables& t) { t.AreaCount = 8; Regions(t, {2}, 0); }},
    {11, "Area# 5 : Area 5 has no Region", [](Tables& t) { Regions(t, {5}, 0); Links(t, {{1, " "}}); }},
    {3,  "Area# 2 : Area 2 has no neighbour", [](Tables& t) { Links(t, {{2, "  "}, {3, ""}}); Regions(t, {5, 6}, 1); }},
    {4,  "Region# 2 : Region 2 has <2 Areas", [](Tables& t) { Regions(t, {4, 5}, 1); Links(t, {{5, "0104"}}); }},
    {5,  "Region# 1 : Region 1 is not linked to another Region", [](Tables& t) { Links(t, {{1, "00"}, {2, "00"}, {3, "00"}}); }},
    {5,  "Region# 1 : Region 1 is not linked to another Region", [](Tables& t) { Links(t, {{3, "0102"}, {4, "0105"}}); }},
    {5,  "Region# 2 : Region 2 is not linked to another Region", [](Tables& t) { Links(t, {{4, "0105"}}); }},
    {6,  "None of the Areas in Region# 2 : Region 2 are linked", [](Tables& t) { Links(t, {{4, "0103"}, {5, "0103"}, {6, "0103"}}); }},
    {7,  "Area# 3(Area 3) is not in the neighbour list of Area# 4 (Area 4)", [](Tables& t) { Links(t, {{4, "020506"}, {6, "020402"}}); }},
    {7,  "Area# 2(Area 2) is not in the neighbour list of Area# 0 (*UNKNOWN*)", [](Tables& t) { Links(t, {{2, "03010300"}}); }},
    {12, "Area# 2(Area 2) Please respecify its Neighbours", [](Tables& t) { Links(t, {{2, "03010300"}, {0, "0102"}}); t.AreaName(1) = ""; }},
    {8,  "Area# 4 has no name", [](Tables& t) { t.AreaName(4) = t.RegionName(1) = ""; }},
    {9,  "Region# 2 has no name", [](Tables& t) { t.RegionName(2) = ""; }},
};
// clang-format on

class ValidateMapTest : public EditorTest {
 protected:
  bool Painted(int x, int y) const {
    return Form.Picture1.Image().Pixels[Form.Picture1.Image().IndexOf(x, y)] == 0xFF800000;
  }
};

TEST_F(ValidateMapTest, StopsAtTheFirstFaultInTheOrderOfTheRules) {
  MakeChain();
  for (const auto& c : RuleCases) {
    Tables tables = Form;
    c.Spoil(tables);
    const Verdict verdict = CheckMap(tables);
    EXPECT_EQ(verdict.Message, c.Message);
    EXPECT_EQ(verdict.Status, c.Status) << c.Message;
  }
}

TEST_F(ValidateMapTest, OnlyAGoodMapIsFloodedFromEachFillPointUpToTheBlack) {
  MakeChain();
  Form.AreaName(6) = "";
  EXPECT_EQ(Click(Form.Cvalid), "red: Area# 6 has no name");
  EXPECT_FALSE(Painted(3, 3));
  Form.AreaName(6) = "Area 6";
  // A wall down the middle; only Area 6 stands to its right.
  auto picture = std::make_shared<forms::Raster>(*BlankPicture(546, 308));
  for (int y = 0; y < 308; ++y) picture->Pixels[picture->IndexOf(440, y)] = 0xFF000000;
  Screen.Pictures["map.bmp"] = picture;
  Click(Form.RefMap);
  Form.ArmyAt(6).Move(450, 100);
  EXPECT_EQ(Click(Form.Cvalid), "This map has no errors");
  EXPECT_TRUE(Painted(3, 3) && Painted(500, 200));
  EXPECT_FALSE(Painted(440, 100));
  Click(Form.RefMap);
  EXPECT_FALSE(Painted(3, 3)) << "a refresh takes the paint away";
  // Each corner in turn carries the fill point over the wall; 7 names none and adds neither side.
  const struct {
    float Left;
    std::int16_t Corner;
    bool Over;
  } corners[] = {
      {408.4F, 7, false}, {441, 0, true}, {409, 1, true}, {441, 2, true}, {409, 3, true}};
  for (std::int16_t i = 1; i <= 6; ++i) Form.ArmyAt(i).Move(-100, 0);
  for (const auto& [left, corner, over] : corners) {
    Form.ArmyAt(1).Move(left, 100);
    Form.AreaCorner(1) = corner;
    Click(Form.RefMap);
    Click(Form.Cvalid);
    EXPECT_EQ(Painted(500, 200), over) << corner;
    EXPECT_EQ(Painted(3, 3), !over) << corner;
  }
}

}  // namespace
}  // namespace terramark
