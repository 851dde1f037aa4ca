#include <random>

#include "document/links.h"
#include "support/editortest.h"

namespace terramark {
namespace {

class EditorTablesTest : public EditorTest {};

TEST_F(EditorTablesTest, ShiftOpensTheTopicOfAControlAndRunsNoCommand) {
  MakeMap(2, 1);
  Form.Symb.Enabled = true;
  const std::string message = Message();
  std::string silent;
  for (const forms::Control* control : Form.Controls()) {
    const bool box = control->Kind() == forms::ControlKind::TextBox;
    if (!box && control->Kind() != forms::ControlKind::CommandButton) continue;
    Screen.Topics.clear();
    ShiftClick(*control);
    if (Screen.Topics.empty()) {
      silent += control->Name() + " ";
    } else {
      EXPECT_EQ(Screen.Topics, std::vector{int{control->HelpTopic}}) << control->Name();
    }
  }
  EXPECT_EQ(silent, "EditText DBPush1 Quit ");
  EXPECT_EQ(Screen.ModalForms, 1) << "the about box opens with Shift too";
  EXPECT_EQ(Screen.Boxes, std::vector<std::string>{"Terramark: Exit Terramark"});
  EXPECT_EQ(Message(), message);
  EXPECT_EQ(Form.AreaCount, 2);
  EXPECT_TRUE(Form.RGBFrame.Enabled) << "a colour button opens help and is pressed as well";
  Screen.Topics.clear();
  Click(Form.TMHelp);
  Click(Form.AddTer, forms::ShiftKey | forms::CtrlKey);
  EXPECT_EQ(Form.AreaCount, 3) << "only Shift alone is help";
  EXPECT_EQ(Screen.Topics, std::vector{2});
}

TEST_F(EditorTablesTest, EveryButtonDoesSomething) {
  for (const forms::Control* control : std::vector(Form.Controls())) {
    if (control->Kind() != forms::ControlKind::CommandButton) continue;
    bool acts = false;
    for (const bool region : {false, true}) {
      Screen.Answers = {forms::Answer::Yes};
      Click(Form.DelAll);
      MakeMap(2, 1);
      Click(region ? Form.Continent(1) : Form.ArmyAt(1));
      ShiftClick(Form.ArmyAt(2));
      Hover(*control);
      const std::size_t before = Screen.Asked();
      const Watcher seen(Form);
      Click(*control);
      acts = acts || seen.Changes > 0 || Screen.Asked() > before;
    }
    EXPECT_TRUE(acts) << control->Name() << " does nothing";
  }
}

TEST_F(EditorTablesTest, FramesOpenHelpWhereNoControlCoversThem) {
  for (const bool enabled : {false, true}) {
    Form.RGBFrame.Enabled = enabled;
    ClickInside(Form.Frame3D1, 2, 2, forms::ShiftKey);
    ClickInside(Form.RGBFrame, 2, 2, forms::ShiftKey);
  }
  EXPECT_EQ(Screen.Topics, (std::vector<int>{14, 14, 14})) << "a disabled one lets presses through";
}

TEST_F(EditorTablesTest, TheHelpBarDescribesMarkersAndGoesBlankElsewhere) {
  MakeMap(7, 1);
  Hover(Form.ArmyAt(7));
  Hover(Form.RGBFrame);
  EXPECT_EQ(Form.Helpbar.Caption.Get(), " 7: Area 7 in Region *UNKNOWN*");
  Hover(Form.Continent(1));
  EXPECT_EQ(Form.Helpbar.Caption.Get(), " 1:  Region 1");
  Form.Pointer.Move(800, 500, 0);
  EXPECT_EQ(Form.Helpbar.Caption.Get(), "");
  const std::string silent = "Frame1 Frame3D1 RGBFrame ColBar Countx Label1";
  for (const forms::Control* control : Form.Controls()) {
    if (control->Container() == &Form.Picture1) continue;
    Form.Helpbar.Caption = "before";
    control->MouseMove.Raise({control->Index(), 0, 0, 0, 0});
    EXPECT_EQ(Form.Helpbar.Caption.Get().empty(), silent.find(control->Name()) == std::string::npos)
        << control->Name();
  }
}

class GesturesTest : public EditorTest {
 protected:
  int Pick(int count) { return std::uniform_int_distribution(0, count - 1)(random_); }

  void AnyGesture() {
    const Bits keys[] = {0, 0, 0, 0, 0, forms::ShiftKey, forms::ShiftKey, forms::CtrlKey, 3};
    const Bits buttons[] = {forms::LeftButton, forms::RightButton, forms::MiddleButton};
    const char* texts[] = {"", "G", "x", "0", "-3", "99", "Name, \"of\" it", ".5"};
    const std::int16_t mapKeys[] = {13, 13, 13, 27, 32, 33,  36,  37,
                                    38, 39, 39, 40, 67, 117, 117, 187};
    const Bits shift = keys[Pick(9)];
    const Bits button = buttons[Pick(3)];
    forms::Control& any = *Form.Controls()[Pick(static_cast<int>(Form.Controls().size()))];
    auto* box = dynamic_cast<forms::TextBox*>(Form.ActiveControl());
    // The map is emptied now and then, but seldom enough to grow.
    if (&any == &Form.DelAll && Pick(20) != 0) return;
    // clang-format off
    switch (Pick(9)) {
      case 0: ClickMap(Pick(546), Pick(308), shift); break;
      case 1: DragFrom(CentreOnForm(any), Pick(600) - 300, Pick(400) - 200, shift, button); break;
      case 2: Key(mapKeys[Pick(16)], shift); break;
      case 3: if (box != nullptr) Type(*box, texts[Pick(8)]); break;
      case 4: Form.ColBar(0).Moved(Pick(300)); break;
      default: DragFrom(CentreOnForm(any), 0, 0, shift, button);
    }
    // clang-format on
  }

  void ExpectInvariants() {
    for (std::int16_t i = 0; i <= LastNumber; ++i) {
      ASSERT_EQ(Form.ArmyAt.Find(i) != nullptr, i <= Form.AreaCount) << i;
      ASSERT_EQ(Form.Continent.Find(i) != nullptr, i <= Form.RegionCount) << i;
    }
    ASSERT_FALSE(Form.ArmyAt(0).Visible || Form.Continent(0).Visible);
    for (std::int16_t i = 1; i <= Form.AreaCount; ++i) {
      ASSERT_TRUE(Form.AreaRegion(i) >= 0 && Form.AreaRegion(i) <= Form.RegionCount) << i;
      const std::string& links = Form.AreaLinks(i);
      const auto pairs = static_cast<std::size_t>(LinkCount(links));
      ASSERT_TRUE(pairs == 0 || links.size() == 2 + 2 * pairs) << links;
    }
    for (std::int16_t r = 1; r <= Form.RegionCount; ++r) {
      ASSERT_EQ(Form.Continent(r).Caption.Get(), Form.RegionName(r));
    }
    ASSERT_TRUE(Form.CurArea == 0 || Form.CurRegion == 0);
  }

 private:
  std::mt19937 random_{20261124};
};

TEST_F(GesturesTest, NoOrderOfGesturesBreaksTheDocument) {
  Screen.Pictures["map.bmp"] = BlankPicture(600, 320);
  Screen.FileNames = {"map.bmp"};
  Click(Form.LoadMap);
  int yes = 0;
  for (int start : {0, 3, 40, 96, 99}) {
    while (Form.AreaCount < start) {
      Form.ArmyAt.Load(++Form.AreaCount);
      forms::Label& marker = Form.ArmyAt(Form.AreaCount);
      marker.Move(static_cast<float>(Pick(546)), static_cast<float>(Pick(308)));
      marker.Visible = true;
    }
    for (int i = 0; i < 2000; ++i) {
      Screen.Answers = {++yes % 2 == 0 ? forms::Answer::Yes : forms::Answer::No};
      try {
        AnyGesture();
      } catch (const Ended&) {
      }
      ExpectInvariants();
      if (HasFatalFailure()) FAIL() << "after gesture " << i << " from " << start;
    }
  }
}

}  // namespace
}  // namespace terramark
