#include <gtest/gtest.h>

#include "layoutfile/layoutreader.h"
#include "layoutfile/layoutwriter.h"
#include "support/tinylayout.h"

namespace terramark {
namespace {

using namespace std::chrono;

const SavingTime TinyTime{1999y / March / 14, hh_mm_ss(21h + 5min + 7s)};

/// As in "7: expected an Area..."; the empty text for a layout.
std::string FaultOf(const std::string& bytes) {
  const auto layout = ReadLayout(bytes);
  if (layout) return "";
  return std::to_string(layout.error().Line) + ": " + layout.error().Description();
}

TEST(MapLayout, HoldsAllThatAFileHoldsAndNothingElse) {
  const std::string tiny = TinyWith({});
  MapLayout map = ReadLayout(tiny).value();
  EXPECT_EQ(WriteLayout(map, TinyTime).Text, tiny);
  // Neither the time of saving nor what is computed, nor the form of a line end or of a number.
  EXPECT_EQ(ReadLayout(TinyWith({{2, "today"}, {15, "3,"}, {19, "1,\"?\""}, {31, "1, 40.0 ,30"}})),
            map);
  // Each line that says something makes another map.
  for (const auto& [line, text] : std::map<int, std::string>{{1, "Other"},
                                                             {4, "C:\\MAPS\\OTHER.BMP"},
                                                             {5, "0,0,0,0,0,0,0,0,0,0,0,0"},
                                                             {6, "1,3,255,0,0,\"North\",4"},
                                                             {7, "1,\"G\",\"Ash\",\"0102\",3"},
                                                             {29, "15,12"},
                                                             {31, "1,40,30.5"},
                                                             {38, "1,60,9"}}) {
    EXPECT_NE(ReadLayout(TinyWith({{line, text}})), map) << line;
  }
  map.AreaLinks(4) = "00";
  const LayoutWritten broken = WriteLayout(map, TinyTime);
  EXPECT_EQ(broken.Text, TinyWith({{11, "4,\"G\",\"Dale\",\"00\",2"}}, 15));
  EXPECT_EQ(broken.StoppedAtArea, 4);
}

TEST(MapLayout, AFaultTellsItsLineAndWhatWasExpected) {
  const std::pair<std::map<int, std::string>, const char*> faults[]{
      {{{3, "100,6"}}, "3: expected the numbers of Regions and of Areas, each from 0 to 99"},
      {{{5, "0,256,40000"}}, "5: expected the twelve numbers of the player colours"},
      {{{6, "9,3,1,2,3,\"\",3"}}, "6: expected the number of a Region, 0 to 2"},
      {{{8, "2,,\"Bir\rch\",0,0"}, {9, "7,\"S\",\"Cedar\",\"020204\",3"}},
       "10: expected the number of an Area, 0 to 6"},
      {{{8, "2,,,,40000"}}, "8: expected an Area: number, symbol, name, neighbours, corner"},
      {{{26, "100,"}}, "26: expected a break: a number from 0 to 99 and a text"},
      {{{39, "2,1,\"1"}}, "39: the file ends, expected the place of a Region: number, left, top"}};
  EXPECT_EQ(FaultOf(""), "1: the file ends, expected a header");
  EXPECT_EQ(FaultOf(TinyWith({}, 12)),
            "13: the file ends, expected an Area: number, symbol, name, neighbours, corner");
  EXPECT_EQ(FaultOf(TinyWith({}, 17)), "18: the file ends, expected the head BLITZ");
  for (const auto& [changes, fault] : faults) EXPECT_EQ(FaultOf(TinyWith(changes)), fault);
  for (int lines = 0; lines < 39; ++lines) {
    EXPECT_EQ(FaultOf(TinyWith({}, lines)).find(std::to_string(lines + 1) + ": the file ends"), 0U);
  }
}

}  // namespace
}  // namespace terramark
