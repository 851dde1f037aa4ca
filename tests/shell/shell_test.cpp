#include <sys/stat.h>
#include <unistd.h>

#include "shell/aboutform.h"
#include "shell/bars.h"
#include "shell/clearmap.h"
#include "shell/filenames.h"
#include "support/editortest.h"

namespace terramark {
namespace {

class ShellTest : public EditorTest {
 protected:
  /// What stands on what in the same container, and by how many pixels; the markers may.
  static std::string Overlaps(const forms::Form& form) {
    std::string all;
    for (const forms::Control* high : form.Controls()) {
      if (high->Container()->Kind() == forms::ControlKind::PictureBox) continue;
      for (const forms::Control* low : high->Container()->Children()) {
        if (low == high) break;
        const forms::PixelRect a = forms::PixelBounds(*low);
        const forms::PixelRect b = forms::PixelBounds(*high);
        const int x = std::min(a.Left + a.Width, b.Left + b.Width) - std::max(a.Left, b.Left);
        const int y = std::min(a.Top + a.Height, b.Top + b.Height) - std::max(a.Top, b.Top);
        if (x <= 0 || y <= 0) continue;
        all += NameOf(*high) + " on " + NameOf(*low) + " " + std::to_string(std::min(x, y)) + "\n";
      }
    }
    return all;
  }
};

TEST_F(ShellTest, NoControlStandsOnAnotherButForTheSeamsOfTheBoxesAtTheTop) {
  EXPECT_EQ(Overlaps(Form),
            "EditText on Text1 2\nSymb on Text1 2\nHelpbar on Text1 1\nArmypc on Text1 2\n");
  EXPECT_EQ(Overlaps(AboutForm(Screen)), "");
}

TEST_F(ShellTest, ComesUpWithTheDefaultsOfTheEditor) {
  EXPECT_EQ(Message(), "Terramark 1 - Map Layout editor, by the Terramark developers");
  EXPECT_FALSE(Form.RGBFrame.Enabled || Form.PlColor(4).Enabled);
  EXPECT_EQ(Form.PlayerRGB[0], (Components{0, 256, 0})) << "256 is the stored default";
  EXPECT_EQ(Form.PlColor(0).BackColor, 0x0000FF00U) << "and shows as 255";
  EXPECT_EQ(Form.ArmyAt(0).Width, 32);
  EXPECT_EQ(Form.ArmyAt(0).Top, 60) << "twips of the design, pixels of the box";
  EXPECT_EQ(Form.Continent(0).Top, 163);
  EXPECT_EQ(Form.Continent(0).Tag.Get(), " 16777215");
  EXPECT_EQ(Form.RegionName(0), "*UNKNOWN*");
  EXPECT_EQ(Form.Countx(0).Caption.Get(), "") << "an empty label already reads as 0";
  EXPECT_EQ(Form.Helpbar.Caption.Get(), "Label2");
  EXPECT_EQ(Form.Message.ForeColor, ClrBlack);
  ShowMessage(Form, "fault", ClrRed);
  EXPECT_EQ(Form.Message.ForeColor, ClrWhite);
  ShowMessage(Form, "result", ClrGreen);
  EXPECT_EQ(Form.Message.ForeColor, ClrBlack);
  Screen.Twips = 12.4F;
  Form_Load(Form);
  EXPECT_EQ(Form.TwipsY, 12) << "the screen's own, in whole numbers";
}

TEST_F(ShellTest, ClearMapEmptiesTheDocumentAndNothingElse) {
  MakeChain();
  Form.Text1.Text = "header";
  Click(Form.Continent(2));
  Click(Form.PlColor(1));
  ClearMap(Form);
  EXPECT_EQ(Message(), "");
  EXPECT_FALSE(Form.RGBFrame.Enabled);
  EXPECT_EQ(Form.AreaSymbol(1) + Form.RegionName(1), "*UNKNOWN*");
  EXPECT_EQ(Form.AreaCount + Form.RegionCount + Form.MarkCount, 0);
  EXPECT_EQ(Form.ArmyAt.Find(1), nullptr);
  EXPECT_EQ(Form.Continent.Find(1), nullptr);
  EXPECT_EQ(Form.AreaLinks(99), " ");
  EXPECT_EQ(Form.AreaName(1), "*UNKNOWN*");
  EXPECT_EQ(Form.RegionArmies(99), 5);
  EXPECT_EQ(Form.RegionRGB(0), (Components{256, 256, 256}));
  EXPECT_EQ(Form.Text1.Text.Get(), "");
  EXPECT_EQ(Form.Countx(0).Caption.Get(), " 0") << "not left empty once it has counted";
  EXPECT_EQ(Form.CurRegion, 2);
  EXPECT_EQ(Form.EditText.Text.Get(), "Region 2");
  EXPECT_EQ(Form.PictureFile, "map.bmp");
  EXPECT_EQ(Form.AreaCorner(6), 2);
}

TEST_F(ShellTest, ExitAsksAndClosingDoesNot) {
  Click(Form.Quit);
  EXPECT_EQ(Screen.Boxes, std::vector<std::string>{"Terramark: Exit Terramark"});
  Screen.Answers.push_back(forms::Answer::Yes);
  EXPECT_THROW(Click(Form.Quit), Ended);
  EXPECT_THROW(Form_Unload(Form), Ended);
  EXPECT_EQ(Screen.Boxes.size(), 2U);
}

TEST_F(ShellTest, AFileNameIsTakenAsTheDialogGivesIt) {
  std::string name = "before";
  SelectAFile(Form, "*.tml", name);
  EXPECT_EQ(name, "") << "cancelled";
  Screen.FileNames.push_back("/?/new map");
  SelectAFile(Form, "*.tml", name);
  EXPECT_EQ(name, "/?/new map");
}

TEST_F(ShellTest, OnlyARegularFileThatCanBeReadIsThere) {
  const std::string file = SAMPLES "/europe.bmp";
  const std::string pipe = testing::TempDir() + "pipe." + std::to_string(::getpid());
  EXPECT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(FileExists(Form, file), 1);
  for (const std::string& none : {file + '\0', file + ".gone", std::string(SAMPLES), pipe,
                                  std::string("/proc/self/status"), std::string("/dev/zero")}) {
    EXPECT_EQ(FileExists(Form, none), 0) << none;
  }
  std::filesystem::remove(pipe);
}

}  // namespace
}  // namespace terramark
