#include <gtest/gtest.h>

#include "forms/controlarray.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "support/scripteddesktop.h"

namespace terramark::forms {
namespace {

class ControlsTest : public testing::Test {
 protected:
  ControlsTest() {
    Window.Add(Box, Window, "Box", 0);
    Window.Add(Bar, Window, "Bar", 0);
    Window.Add(Labels.Design(0), Window, "Labels", 0);
    Window.Observe(&Seen);
  }

  ScriptedDesktop Screen;
  Watcher Seen;
  Form Window{Screen};
  TextBox Box;
  VScrollBar Bar;
  ControlArray<Label> Labels;
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
  EXPECT_EQ(Seen.Changes, 2);
  Box.Text = "good";
  EXPECT_EQ(Seen.Changes, 2);
}

TEST_F(ControlsTest, LimitsHoldTheUserAndNotTheProgram) {
  Box.MaxLength = 4;
  Box.Typed("abcdef");
  EXPECT_EQ(Box.Text.Get(), "abcd");
  Box.Text = "a longer name";
  Box.Typed("a longer nam");
  EXPECT_EQ(Box.Text.Get(), "a longer nam") << "a long text may be shortened bit by bit";
  Box.Typed("pasted over all of it");
  EXPECT_EQ(Box.Text.Get(), "past");
  Box.Typed("paXst");
  EXPECT_EQ(Box.Text.Get(), "past") << "and what stands there keeps its place";
  Box.Enabled = false;
  Box.Typed("x");
  EXPECT_EQ(Box.Text.Get(), "past");
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
  EXPECT_EQ(Seen.Added, 1);
  EXPECT_EQ(Seen.Removed, 1);
  EXPECT_EQ(Window.Controls().size(), 3U);
}

}  // namespace
}  // namespace terramark::forms
