#include "shell/colours.h"
#include "support/layoutfolder.h"

namespace terramark {
namespace {

using LoadLayout = LayoutFolder;

/// The file that stands in the description of the format, with the line ends of a file.
std::string DescribedExample() {
  const std::string page = BytesOf(SAMPLES "/../docs/layout-format.md");
  const std::size_t start = page.find("```tml\n") + 7;
  std::string lines;
  for (const char c : page.substr(start, page.find("```", start) - start)) {
    lines += c == '\n' ? "\r\n" : std::string(1, c);
  }
  return lines;
}

TEST_F(LoadLayout, RoundTripKeepsEveryByte) {
  LoadBytes(Tiny);
  EXPECT_EQ(Saved("again.tml"), Tiny);
  EXPECT_EQ(Form.LayoutFile, "again.tml");
  EXPECT_EQ(Form.LoadMpa.Caption.Get(), "again.tml");
  EXPECT_EQ(Form.Message.Caption.Get(), "");
  for (const char* picture : {"europe.bmp", "europe.wmf", "shores.bmp"}) AddPicture(picture);
  for (std::string bytes :
       {BytesOf(SAMPLES "/europe.tml"), BytesOf(SAMPLES "/europe-wmf.tml"), DescribedExample()}) {
    LoadBytes(bytes);
    bytes.replace(bytes.find('\n') + 1, 19, "03-14-1999 21:05:07");  // the clock of the test
    EXPECT_EQ(Saved("again.tml"), bytes);
  }
}

TEST_F(LoadLayout, MarkersAndBoxesShowTheMap) {
  Twips = 12;
  LoadBytes(Tiny);
  EXPECT_EQ(Marker(Form.ArmyAt(2)), "^2 at 150,37 0000ff plain") << "120 pixels of 15 twips";
  EXPECT_EQ(Marker(Form.Continent(2)), "South at 375,50 ff0000 plain");
  EXPECT_EQ(Form.Countx(0).Caption.Get(), " 6");
  EXPECT_EQ(Form.PlColor(0).BackColor, 0x0000FF00U);
  EXPECT_EQ(Form.LoadMap.Caption.Get(), TinyPicture);
  EXPECT_EQ(Form.Picture1.Picture.Get(), Pictures[TinyPicture]);
  const auto& stack = Form.Picture1.Children();
  EXPECT_EQ(stack[stack.size() - 6], &Form.ArmyAt(1));
  EXPECT_EQ(stack.back(), &Form.ArmyAt(6));
  EXPECT_TRUE(Form.ArmyAt(6).Visible);
}

TEST_F(LoadLayout, ReadsByTheLetter) {
  LoadBytes(TinyWith({{1, "a \"b\", c"},
                      {7, "1,\"Gun\",\"2nd, Ash\",\"0102\",7"},  // a word counts as no letter
                      {14, "any head"},
                      {32, "1,-7.5,30"},  // moves Area 1 again, and Area 2 not at all
                      {40, ""}}));
  EXPECT_EQ(Form.Text1.Text.Get(), "a \"b\", c");
  EXPECT_EQ(Form.AreaSymbol(1), "2");
  EXPECT_EQ(Form.AreaName(1), "2nd, Ash");
  EXPECT_EQ(Form.ArmyAt(1).Caption.Get(), " 1");
  EXPECT_EQ(Form.ArmyAt(1).Left, -7.5F);
  EXPECT_EQ(Form.ArmyAt(2).Left, Form.ArmyAt(0).Left);
  LoadBytes("\n\n0,0\n" + TinyPicture +
            "\n0,0,0,0,0,0,0,0,0,0,0,0\nB\n0,\nB\nB\nX\n15,15\n0,6,60\nX\n");
  EXPECT_EQ(Form.AreaCount, 0);
}

TEST_F(LoadLayout, EveryFailureIsToldAndEndsTheProcess) {
  std::vector<std::string> files;
  for (int lines = 0; lines < 39; ++lines) files.push_back(TinyWith({}, lines));
  // clang-format off
  const std::vector<std::pair<const int, std::string>> faults{
      // Counts, colours and a scale that do not fit
      {3, "100,6"}, {3, "2,32768"}, {5, "0,256,0,256,0,0,256,256,0,125,125,40000"}, {29, "15,32768"},
      // Numbers outside the tables or without a marker
      {6, "100,3,1,2,3,\"\",3"}, {13, "-1,G,,0102,2"}, {13, "7,G,,0102,2"}, {15, "100,0104"},
      {17, "100,0104"}, {24, "-1,0101"}, {27, "100,010403"}, {36, "7,40,30"}, {39, "-1,60,10"},
      {4, "broken.bmp"}};
  // clang-format on
  files.push_back(TinyWith({{3, "2,-1"}, {4, "gone.bmp"}}));  // the count comes before the picture
  // Three Regions, of which one that is not there has no Areas.
  files.push_back(TinyWith({{3, "3,6"},
                            {10, "9,0,1,2,3,,3\n2,3,0,0,255,\"South\",2"},
                            {27, "2,\n3,"},
                            {39, "2,1,1\n3,1,1"}}));
  // A place out of all reach, though a later line gives the same marker another.
  files.push_back(TinyWith({{29, "30,15"}, {30, "1,3" + std::string(38, '0') + ",10"}}));
  for (const auto& fault : faults) files.push_back(TinyWith({fault}));
  Put("broken.bmp", "no picture");
  for (const std::string& bytes : files) {
    Boxes.clear();
    int status = 0;
    try {
      LoadBytes(bytes);
    } catch (const Ended& ended) {
      status = ended.Status;
    }
    EXPECT_EQ(status, 1) << bytes;
    EXPECT_EQ(Boxes, std::vector<std::string>{"TMRK 1.1: Error reading Map Layout File map.tml"});
  }
}

TEST_F(LoadLayout, MissingPictureStopsTheReadButNotTheEditor) {
  LoadBytes(Tiny);
  Put("other.tml", TinyWith({{1, "Other"}, {3, "1,3"}, {4, "gone,away.bmp"}}));
  Load("other.tml");
  EXPECT_EQ(Entered, (std::vector<std::string>{"map.tml", "other.tml"}));
  EXPECT_EQ(Boxes, std::vector<std::string>{"TMRK 1.1: MAP File gone not found"});
  EXPECT_EQ(Form.PictureFile, "gone");  // a comma ends it
  EXPECT_EQ(Form.LoadMap.Caption.Get(), TinyPicture);
  EXPECT_EQ(Form.LoadMpa.Caption.Get(), "other.tml");
  EXPECT_EQ(Form.Text1.Text.Get(), "Other");
  EXPECT_FALSE(Form.ArmyAt(3).Visible);
  EXPECT_EQ(Form.ArmyAt.Find(4), nullptr);
  EXPECT_EQ(Form.AreaName(1), UnknownName);
  EXPECT_EQ(Form.Countx(0).Caption.Get(), " 0");
}

TEST_F(LoadLayout, AFileThatCannotBeOpenedChangesNothing) {
  LoadBytes(Tiny);
  Entered.clear();
  for (const std::string fault : {"nowhere.tml: no such file or directory", ".: it is a folder"}) {
    Load(fault.substr(0, fault.find(':')));
    EXPECT_EQ(Form.Message.Caption.Get(), "Cannot open Map Layout File " + fault);
    EXPECT_EQ(Form.Message.BackColor, ClrRed);
    EXPECT_EQ(Form.LayoutFile, "map.tml");
    EXPECT_EQ(Form.AreaName(6), "Fir");
  }
  EXPECT_TRUE(Entered.empty());
}

}  // namespace
}  // namespace terramark
