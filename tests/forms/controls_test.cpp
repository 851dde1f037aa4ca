#include <gtest/gtest.h>

#include <optional>

#include "forms/controlarray.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "support/scripteddesktop.h"

namespace terramark::forms {
namespace {

class ControlsTest : public testing::Test {
 protected:
  ControlsTest() {
    Window.Add(Box, Window);
    Window.Add(Bar, Window);
    Window.Add(Labels.Design(0), Window);
    Seen.emplace(Window);
  }

  ScriptedDesktop Screen;
  Form Window{Screen, "Window"};
  TextBox Box{"Box"};
  VScrollBar Bar{"Bar"};
  ControlArray<Label> Labels{"Labels"};
  std::optional<Watcher> Seen;
};

TEST_F(ControlsTest, OnlyARealChangeIsToldAndItsEventRunsInsideTheAssignment) {
  std::string seen;
  Box.Change = [&](const PlainEvent&) {
    seen = Box.Text;
    if (Box.Text.Get() == "bad") Box.Text = "good";
  };
  Box.Text = "bad";
  EXPECT_EQ(seen, "good");
  EXPECT_EQ(Box.Text.Get(), "good");
  EXPECT_EQ(Seen->Changes, 2);
  Box.Text = "good";
  EXPECT_EQ(Seen->Changes, 2);
}

TEST_F(ControlsTest, LimitsHoldTheUserAndNotTheProgram) {
  const struct {
    std::size_t At;
    std::size_t Cut;
    const char* Insert;
    const char* Text;
  } edits[] = {{12, 1, "", "a longer nam"},  // a long text may be shortened bit by bit
               {2, 3, "xyz", "a ger nam"},   // and takes nothing while it is too long
               {0, 9, "a and b", "a an"},    // what comes for all of it is cut to the room,
               {1, 2, "bcdef", "abcn"},      // as is what comes for a part,
               {1, 0, "x", "abcn"},          // and what stands there is not pushed out
               {4, 0, "x", "abcn"}};
  Box.MaxLength = 4;
  Box.Text = "a longer name";
  for (const auto& edit : edits) {
    Box.Edited(edit.At, edit.Cut, edit.Insert);
    EXPECT_EQ(Box.Text.Get(), edit.Text);
  }
  Box.Enabled = false;
  Box.Edited(0, 4, "x");
  EXPECT_EQ(Box.Text.Get(), "abcn");
  Bar.Max = 256;
  Bar.Moved(300);
  EXPECT_EQ(Bar.Value.Get(), 256);
}

TEST_F(ControlsTest, AnElementIsAnInvisibleCopyOfTheTemplate) {
  int hovered = 0;
  Labels(0).MouseMove = [&](const MouseEvent& event) { hovered = event.Index; };
  Labels(0).Width = 30;
  Labels(0).Height = 15;
  Labels(0).BackColor = 0x123456;
  Labels(0).Tag = "7";
  Labels.Load(5);
  EXPECT_EQ(Labels(5).Index(), 5);
  EXPECT_EQ(Labels(5).Name(), "Labels");
  EXPECT_FALSE(Labels(5).Visible);
  EXPECT_EQ(Labels(5).BackColor, 0x123456U);
  EXPECT_EQ(Labels(5).Tag.Get(), "7");
  Labels(5).MouseMove.Raise({5, 0, 0, 0, 0});
  EXPECT_EQ(hovered, 5);
  Labels.Unload(5);
  EXPECT_EQ(Labels.Find(5), nullptr);
  EXPECT_EQ(Labels.Find(-1), nullptr);
  EXPECT_EQ(Labels.Find(100), nullptr);
  EXPECT_DEATH(Labels(3), "Labels.3. does not exist");
  EXPECT_EQ(Seen->Added, 1);
  EXPECT_EQ(Seen->Removed, 1);
  EXPECT_EQ(Window.Controls().size(), 3U);
}

TEST_F(ControlsTest, TheKeyboardLeavesWhatCanNotHaveIt) {
  std::string heard;
  Window.KeyPreview = true;
  Window.KeyUp = [&](const KeyEvent&) { heard += "form "; };
  Box.KeyUp = [&](const KeyEvent&) { heard += "box "; };
  for (Property<bool>* state : {&Box.Enabled, &Box.Visible, &Window.Enabled}) {
    Window.Focus(&Box);
    EXPECT_EQ(Window.ActiveControl(), &Box);
    Window.KeyReleased({});
    *state = false;
    Window.Focus(&Box);
    EXPECT_EQ(Window.ActiveControl(), nullptr);
    Window.KeyReleased({});
    *state = true;
    EXPECT_EQ(Window.ActiveControl(), &Box) << "it gets it back,";
  }
  Box.Enabled = false;
  Window.Focus(&Bar);
  Box.Enabled = true;
  EXPECT_EQ(Window.ActiveControl(), &Bar) << "unless another has taken it";
  EXPECT_EQ(heard, "form box form form box form form box form ");
}

}  // namespace
}  // namespace terramark::forms
