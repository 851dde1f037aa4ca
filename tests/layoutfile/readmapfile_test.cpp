#include "layoutfile/layoutfolder.h"
#include "shell/colours.h"

namespace terramark {
namespace {

using LoadLayout = LayoutFolder;

TEST_F(LoadLayout, RoundTripKeepsEveryByte) {
  LoadBytes(FileOf(TinyMap));
  Save("again.tml");
  EXPECT_EQ(Get("again.tml"), FileOf(TinyMap));
  EXPECT_EQ(form.LayoutFile, "again.tml");
  EXPECT_EQ(form.LoadMpa.Caption.Get(), "again.tml");
  EXPECT_EQ(form.Message.Caption.Get(), "");
  for (const char* sample : {"europe.tml", "europe-wmf.tml"}) {
    std::filesystem::copy(std::filesystem::path(SAMPLES) / sample, Folder / sample);
    AddPicture("europe.bmp");
    AddPicture("europe.wmf");
    Load(sample);
    Save("again.tml");
    std::string expected = Get(sample);
    expected.replace(expected.find("\r\n") + 2, TinyMap[1].size(), TinyMap[1]);
    EXPECT_EQ(Get("again.tml"), expected) << sample;
  }
}

TEST_F(LoadLayout, MarkersAndBoxesShowTheMap) {
  Twips = 12;
  LoadBytes(FileOf(TinyMap));
  const forms::Label& birch = form.ArmyAt(2);
  EXPECT_EQ(birch.Left, 150);  // 120 pixels of 15 twips
  EXPECT_EQ(birch.Caption.Get(), "^2");
  EXPECT_EQ(birch.ForeColor, 0x000000FFU);
  EXPECT_EQ(birch.Tag.Get(), " 255");
  EXPECT_EQ(birch.BackColor, ClrBlack);
  EXPECT_EQ(form.AreaSymbol(2), "2");
  EXPECT_EQ(form.Continent(2).Caption.Get(), "South");
  EXPECT_EQ(form.Countx(0).Caption.Get(), " 6");
  EXPECT_EQ(form.PlColor(0).BackColor, 0x0000FF00U);
  EXPECT_EQ(form.LoadMap.Caption.Get(), TinyMap[3]);
  EXPECT_EQ(form.Picture1.Image().Width, form.Picture1.BoxWidth());
  const auto& stack = form.Picture1.Children();
  EXPECT_EQ(stack[stack.size() - 6], &form.ArmyAt(1));
  EXPECT_EQ(stack.back(), &form.ArmyAt(6));
}

TEST_F(LoadLayout, ReadsByTheLetter) {
  auto lines = TinyMap;
  lines[0] = "a \"b\", c";
  lines[6] = "1,\"g\",\"2nd, Ash\",\"0102\",7";  // a small letter counts as none
  lines[13] = "any head";
  lines[31] = "1,-7.5,30";  // moves Area 1 again, and Area 2 not at all
  lines.resize(39);         // the last line is not read
  LoadBytes(FileOf(lines));
  EXPECT_EQ(form.Text1.Text.Get(), lines[0]);
  EXPECT_EQ(form.AreaSymbol(1), "2");
  EXPECT_EQ(form.AreaName(1), "2nd, Ash");
  EXPECT_EQ(form.ArmyAt(1).Caption.Get(), " 1");
  EXPECT_EQ(form.ArmyAt(1).Left, -7.5F);
  EXPECT_EQ(form.ArmyAt(2).Left, form.ArmyAt(0).Left);
  LoadBytes("\n\n0,0\n" + TinyMap[3] + "\n" + TinyMap[4] + "\nB\n0,\nB\nB\nX\n15,15\n0,6,60\nX\n");
  EXPECT_EQ(form.AreaCount, 0);
  EXPECT_TRUE(Boxes.empty());
}

TEST_F(LoadLayout, EveryFailureIsToldAndEndsTheProcess) {
  std::vector<std::string> files;
  for (std::size_t lines = 0; lines < 39; ++lines) files.push_back(FileOf(TinyMap, lines));
  const struct {
    std::size_t Line;  // from 1
    const char* Text;
  } faults[]{
      {3, "100,6"},
      {3, "2,-1"},
      {3, "2,32768"},  // counts that the tables do not hold
      {5, "0,256,0,256,0,0,256,256,0,125,125,40000"},
      {6, "100,3,255,0,0,\"North\",3"},
      {6, "3,3,255,0,0,\"North\",3"},
      {7, "-1,\"G\",\"Ash\",\"0102\",2"},
      {7, "7,\"G\",\"Ash\",\"0102\",2"},
      {7, "1,\"G\",\"Ash\",\"0102\",99999"},
      {15, "100,\"0104\""},
      {20, "-1,\"01,01\""},
      {26, "100,\"01,04,03\""},
      {29, "15,32768"},
      {31, "7,40,30"},
      {38, "-1,60,10"},
      {38, "1,1000000000000000000000000000000000000000,10"},
  };
  for (const auto& [line, text] : faults) {
    auto lines = TinyMap;
    lines[line - 1] = text;
    files.push_back(FileOf(lines));
  }
  Put("broken.bmp", "no picture");
  auto lines = TinyMap;
  lines[3] = "broken.bmp";
  files.push_back(FileOf(lines));
  for (const std::string& bytes : files) {
    Boxes.clear();
    try {
      LoadBytes(bytes);
      ADD_FAILURE() << "read without a fault:\n" << bytes;
    } catch (const Ended& end) {
      EXPECT_EQ(end.Status, 1);
    }
    EXPECT_EQ(Boxes, std::vector<std::string>{"TMRK 1.1: Error reading Map Layout File map.tml"});
  }
}

TEST_F(LoadLayout, MissingPictureStopsTheReadButNotTheEditor) {
  LoadBytes(FileOf(TinyMap));
  auto lines = TinyMap;
  lines[0] = "Other";
  lines[2] = "1,3";
  lines[3] = "gone,away.bmp";
  Put("other.tml", FileOf(lines));
  Load("other.tml");
  EXPECT_EQ(Boxes, std::vector<std::string>{"TMRK 1.1: MAP File gone not found"});
  EXPECT_EQ(form.PictureFile, "gone");  // a comma ends it
  EXPECT_EQ(form.LoadMap.Caption.Get(), TinyMap[3]);
  EXPECT_EQ(form.LoadMpa.Caption.Get(), "other.tml");
  EXPECT_EQ(form.Text1.Text.Get(), "Other");
  EXPECT_EQ(form.AreaCount, 3);
  EXPECT_FALSE(form.ArmyAt(3).Visible);
  EXPECT_EQ(form.ArmyAt.Find(4), nullptr);
  EXPECT_EQ(form.AreaName(1), UnknownName);
  EXPECT_EQ(form.Countx(0).Caption.Get(), " 0");
}

TEST_F(LoadLayout, AFileThatCannotBeOpenedOrACancelChangesNothing) {
  LoadBytes(FileOf(TinyMap));
  Load("*.tml");
  EXPECT_EQ(form.Message.Caption.Get(), "");
  for (const char* name : {"nowhere.tml", "."}) {
    Load(name);
    EXPECT_EQ(form.Message.Caption.Get(), std::string("Cannot open Map Layout File ") + name);
    EXPECT_EQ(form.Message.BackColor, ClrRed);
    EXPECT_EQ(form.LayoutFile, "map.tml");
    EXPECT_EQ(form.AreaName(6), "Fir");
  }
}

}  // namespace
}  // namespace terramark
