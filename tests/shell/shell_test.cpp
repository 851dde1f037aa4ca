#include "commands/aboutform.h"
#include "shell/bars.h"
#include "shell/filefault.h"
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
  EXPECT_EQ(Form.Countx(0).Caption.Get(), "") << "an empty label already reads as 0";
  EXPECT_EQ(Form.Message.ForeColor, ClrBlack);
  ShowMessage(Form, "fault", ClrRed);
  EXPECT_EQ(Form.Message.ForeColor, ClrWhite);
  ShowMessage(Form, "result", ClrGreen);
  EXPECT_EQ(Form.Message.ForeColor, ClrBlack);
  Screen.Twips = 12.4F;
  Form_Load(Form);
  EXPECT_EQ(Form.TwipsY, 12) << "the screen's own, in whole numbers";
}

TEST_F(ShellTest, ExitAsksAndClosingDoesNot) {
  Click(Form.Quit);
  EXPECT_EQ(Screen.Boxes, std::vector<std::string>{"Terramark: Exit Terramark"});
  Screen.Answers.push_back(forms::Answer::Yes);
  EXPECT_THROW(Click(Form.Quit), Ended);
  EXPECT_THROW(Form_Unload(Form), Ended);
  EXPECT_EQ(Screen.Boxes.size(), 2U);
}

TEST_F(ShellTest, AFaultLeavesOutTheMiddleOfALongPath) {
  const std::string f(3'000'000, 'f');
  const std::string name = "/" + std::string(50, 'n');
  const auto shown = [&](const std::string& path, const std::string& rest) {
    ShowFileFault(Form, "Cannot ", path, rest);
    return Message().substr(std::size("red: Cannot"));
  };
  // Of the bar's 543 pixels each character takes 7.
  EXPECT_EQ(shown("/f" + name, "? No more room."), "/f" + name + "? No more room.");
  EXPECT_EQ(shown(f + name, "?"), f.substr(0, 15) + "..." + name + "?");
  EXPECT_EQ(shown(f + name + f, name), "nnnnnnnnnnnn...ffffffffffff" + name);
}

TEST_F(ShellTest, AFolderEndsAtTheSystemsOwnSeparators) {
  const bool windows = std::filesystem::path::preferred_separator != '/';
  EXPECT_EQ(FolderLength("first.bmp"), 0U);
  EXPECT_EQ(FolderLength("maps/first.bmp"), 5U);
  EXPECT_EQ(FolderLength("C:\\maps/old\\first.bmp"), windows ? 12U : 8U);
}

TEST_F(ShellTest, OnlyARegularFileThatCanBeReadIsThere) {
  const std::string file = SAMPLES "/europe.bmp";
  EXPECT_EQ(FileExists(Form, file), 1);
  for (const std::string& none : {file + '\0', file + ".gone", std::string(SAMPLES)}) {
    EXPECT_EQ(FileExists(Form, none), 0) << none;
  }
}

}  // namespace
}  // namespace terramark
