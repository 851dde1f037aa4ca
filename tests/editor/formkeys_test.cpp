#include <gtest/gtest.h>

#include "support/editortest.h"

namespace terramark {
namespace {

using namespace forms;

using FormKeysTest = EditorTest;

TEST_F(FormKeysTest, F1OpensTheHelpOnWhatHasTheKeyboard) {
  const std::pair<Control*, std::int16_t> cases[]{
      {&Form.Text1, 15}, {&Form.EditText, 2}, {nullptr, 2}, {&Form.ColBar(1), 14}};
  Form.RGBFrame.Enabled = true;
  for (const auto& [control, topic] : cases) {
    Form.Focus(control);
    Key(KeyF1);
    EXPECT_EQ(Screen.Topics.back(), topic);
  }
}

TEST_F(FormKeysTest, F6GoesToTheMapAndBack) {
  for (Control* from : {static_cast<Control*>(&Form.Text1), static_cast<Control*>(&Form.Quit)}) {
    Form.Focus(from);
    Key(KeyF6);
    EXPECT_EQ(Form.ActiveControl(), &Form.Picture1);
    Key(KeyF6);
    EXPECT_EQ(Form.ActiveControl(), from);
  }
  Click(Form.AddCont);
  Form.Focus(&Form.Armypc);
  Key(KeyF6);
  EXPECT_EQ(Form.Helpbar.Caption.Get(), " 1:  Region 1") << "the ring is on it";
  Form.Armypc.Enabled = false;
  Key(KeyF6);
  EXPECT_EQ(Form.ActiveControl(), &Form.EditText);
}

}  // namespace
}  // namespace terramark
