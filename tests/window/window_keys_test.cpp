#include <gtest/gtest.h>

#include <QClipboard>
#include <QDialog>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <string>

#include "document/numbers.h"
#include "window/windowsupport.h"

namespace terramark::window {
namespace {

struct WindowKeys : testing::Test, TestWindow {};

TEST_F(WindowKeys, TabWalksInTheOrderOfTheTable) {
  for (const forms::Control* control : Form.Controls()) {
    QWidget* const widget = Window.View().WidgetOf(*control);
    if (widget == nullptr || widget->focusPolicy() == Qt::NoFocus || !widget->isEnabled()) continue;
    EXPECT_EQ(Form.ActiveControl(), control) << control->Name();
    EXPECT_EQ(QApplication::focusWidget(), widget);
    Key(Qt::Key_Tab);
  }
  Form.EditText.SetFocus();
  EXPECT_EQ(QApplication::focusWidget(), &Of(Form.EditText));
  Click(Form.Quit);
  EXPECT_EQ(Form.ActiveControl(), &Form.Quit);
}

TEST_F(WindowKeys, TheFormHearsKeysBeforeTheControlAndWhenNoneHasThem) {
  std::string heard;
  Form.KeyUp = [&](const forms::KeyEvent& key) { heard += std::to_string(key.KeyCode) + " "; };
  Form.EditText.KeyUp = [&](const forms::KeyEvent&) { heard += "box "; };
  for (const char* name : {"EditText", "ColBar(0)", "AddTer"}) {
    auto& widget = *Window.findChild<QWidget*>(name);
    widget.setFocus();
    Key(Qt::Key_Up);
    Key(Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget(), &widget);
  }
  EXPECT_EQ(heard, "38 box 40 box 38 40 38 40 ");
  heard.clear();
  for (forms::Control* control :
       std::initializer_list<forms::Control*>{&Form.Symb, &Form.ColBar(1), &Form.PlColor(4)}) {
    forms::Control& frame = control == &Form.ColBar(1) ? Form.RGBFrame : *control;
    Form.KeyUp = [&](const forms::KeyEvent&) {
      heard += control->Name() + " ";
      frame.Enabled = false;
    };
    control->SetFocus();
    Key(Qt::Key_Up);
    EXPECT_EQ(Form.ActiveControl(), nullptr) << control->Name();
    Key(Qt::Key_Up);
    frame.Enabled = true;
    EXPECT_TRUE(Of(*control).hasFocus());
  }
  Form.KeyUp = [&](const forms::KeyEvent& key) { heard += std::to_string(key.KeyCode) + " "; };
  QApplication::focusWidget()->clearFocus();
  for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Return, Qt::Key_Enter}) Key(key);
  EXPECT_EQ(heard, "Symb Symb ColBar ColBar PlColor PlColor 38 13 13 ");
  Window.setFocus();
  Key(Qt::Key_Tab);
  EXPECT_EQ(Form.ActiveControl(), &Form.Text1) << "where Tab begins";
}

TEST_F(WindowKeys, AHeldKeyActsOnceAndABoxThatItFindsOpenKnowsNothingOfIt) {
  const auto tell = [](QWidget& to, QEvent::Type half, Qt::Key key, bool repeat = false) {
    QKeyEvent event(half, key, {}, " ", repeat);
    QCoreApplication::sendEvent(to.windowHandle(), &event);
  };
  const auto repeat = [&](QWidget& in, Qt::Key key) {
    for (int i = 0; i < 3; ++i) {
      tell(in, QEvent::KeyRelease, key, true);
      tell(in, QEvent::KeyPress, key, true);
    }
  };
  QDialog box(&Window);
  QPushButton answer("Yes", &box);
  int acts = 0;
  int answers = 0;
  bool repeats = false;
  Form.KeyDown = [&](const forms::KeyEvent& event) { repeats |= event.Repeat; };
  Form.KeyUp = [&](const forms::KeyEvent& event) { acts += event.KeyCode == 38; };
  Form.AddTer.Click = [&](const auto&) { ++acts; };
  QObject::connect(&answer, &QPushButton::clicked, [&answers] { ++answers; });
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Up}) {
    acts = answers = 0;
    repeats = false;
    Form.AddTer.SetFocus();
    tell(Window, QEvent::KeyPress, key);
    repeat(Window, key);
    box.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
    answer.setFocus();
    repeat(box, key);
    tell(box, QEvent::KeyRelease, key);
    EXPECT_EQ(answers, 0);
    tell(box, QEvent::KeyPress, key);
    tell(box, QEvent::KeyRelease, key);
    EXPECT_EQ(answers, key == Qt::Key_Up ? 0 : 1);
    box.hide();
    repeat(Window, key);
    tell(Window, QEvent::KeyRelease, key);
    EXPECT_EQ(acts, 0);
    Form.AddTer.SetFocus();
    tell(Window, QEvent::KeyPress, key);
    repeat(Window, key);
    tell(Window, QEvent::KeyRelease, key);
    EXPECT_EQ(acts, 1);
    EXPECT_EQ(repeats, key == Qt::Key_Space || key == Qt::Key_Up);
  }
}

TEST_F(WindowKeys, AnEditIsHeldToTheLimitWhereItWasMade) {
  forms::TextBox& box = Form.EditText;
  auto& line = Of<QLineEdit>(box);
  const auto paste = [&](const char* text) {
    QGuiApplication::clipboard()->setText(text);
    Key(Qt::Key_V, Qt::ControlModifier);
    return box.Text.Get();
  };
  box.SetFocus();
  Type("0123456789abcdefXY");
  EXPECT_EQ(box.Text.Get(), "0123456789abcdef");
  line.setCursorPosition(3);
  Type("Z");
  EXPECT_EQ(box.Text.Get(), "0123456789abcdef") << "the end was pushed out";
  EXPECT_EQ(line.cursorPosition(), 3);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(box.Text.Get(), "") << "a refused letter took the way back along";
  Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  line.setSelection(6, -2);
  EXPECT_EQ(paste("xyz"), "0123xy6789abcdef");
  EXPECT_EQ(line.cursorPosition(), 6);
  box.Text = "fedcba9876543210";
  line.setSelection(6, -3);
  QInputMethodEvent composed;
  composed.setCommitString("xyzu");
  QCoreApplication::sendEvent(&line, &composed);
  EXPECT_EQ(box.Text.Get(), "fedxyz9876543210");

  box.Text = "a text of more than sixteen";
  EXPECT_EQ(line.text(), "a text of more than sixteen");
  Key(Qt::Key_End);
  Key(Qt::Key_Backspace);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(box.Text.Get(), "a text of more than sixteen") << "taken back, nothing is lost";
  Key(Qt::Key_Backspace);
  Type("nX");
  EXPECT_EQ(box.Text.Get(), "a text of more than sixtee") << "it may only become shorter";
  box.SelectAll();
  EXPECT_EQ(paste("Seventeen letters"), "Seventeen letter");
  box.SelectAll();
  Type("New");
  EXPECT_EQ(box.Text.Get(), "New");

  // Of a text that is long beyond reason the beginning is shown, and the rest is kept.
  Form.Text1.Text = std::string(65536, 'x') + "the end";
  const auto& shown = Of<QLineEdit>(Form.Text1);
  EXPECT_EQ(shown.text().size(), 65536);
  Form.Text1.SetFocus();
  Key(Qt::Key_Home);
  Key(Qt::Key_Delete);
  EXPECT_EQ(shown.text().right(2), "xt");
  EXPECT_EQ(Form.Text1.Text.Get().substr(65533), "xxthe end");
}

TEST_F(WindowKeys, ARefusedEditShowsAtOnceWithTheCaretWhereItWas) {
  forms::TextBox& box = Form.Armypc;
  auto& line = Of<QLineEdit>(box);
  std::string last;
  std::string atCharacters;
  std::string carets;
  box.KeyDown = [&](const forms::KeyEvent&) { last = box.Text; };
  box.KeyPress = [&](const forms::PlainEvent&) { atCharacters += (last = box.Text) + " "; };
  box.Change = [&](const forms::PlainEvent&) {
    if (ReadNumber(box.Text.Get()) == 0) box.Text = last;
  };
  box.Text = "15";
  box.SetFocus();
  line.setCursorPosition(1);
  for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_End, Qt::Key_Backspace}) {
    Key(key);
    carets += line.text().toStdString() + "@" + std::to_string(line.cursorPosition()) + " ";
  }
  EXPECT_EQ(carets, "5@0 5@0 5@1 5@1 ");
  Type("7");
  EXPECT_EQ(line.text(), "57");
  line.selectAll();
  Type("x8");
  EXPECT_EQ(line.text(), "8") << "the mark outlives a refusal";
  EXPECT_EQ(atCharacters, "15 5 5 57 57 ") << "the text before each key that makes a character";
  box.Text = "59";
  line.setSelection(1, -1);
  const auto compose = [&](const char* preedit, const char* commit) {
    QInputMethodEvent event(preedit, {});
    event.setCommitString(commit);
    QCoreApplication::sendEvent(&line, &event);
    return box.Text.Get() + " " + (line.text() + "/" + line.selectedText()).toStdString();
  };
  EXPECT_EQ(compose("", "x"), "59 59/5") << "by an input method";
  EXPECT_EQ(compose("q", ""), "59 9/") << "not the control's yet";
  EXPECT_EQ(compose("q", "x"), "59 9/") << "refused, and composed on";
  EXPECT_EQ(compose("", ""), "59 59/5") << "given up";
  compose("q", "");
  EXPECT_EQ(compose("", "8"), "89 89/");
  line.selectAll();
  compose("q", "");
  Form.Text1.SetFocus();
  EXPECT_EQ(line.text(), "89") << "the keyboard went";
}

TEST_F(WindowKeys, TheMouseSelectsTextAndIsHeardByTheForm) {
  auto& line = Of<QLineEdit>(Form.Text1);
  std::string heard;
  Form.Text1.MouseUp = [&](const forms::MouseEvent& event) {
    heard += std::to_string(event.Button) + std::to_string(event.Shift) + " ";
  };
  Form.Text1.Text = "some words";
  Press({3, 10});
  Move({200, 10});
  Release({200, 10}, Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_EQ(line.selectedText(), "some words");
  // With the Shift key a press asks for help and for nothing else.
  for (const auto button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
    Press({3, 10}, button, Qt::ShiftModifier);
    Move({100, 10});
    Release({100, 10}, button, Qt::ShiftModifier);
    EXPECT_EQ(line.selectedText(), "some words");
  }
  EXPECT_EQ(heard, "11 11 41 21 ");
  heard.clear();

  // The menu takes the release; the next press must not still belong to the box.
  Press({20, 10}, Qt::RightButton);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(heard, "20 ");
  QApplication::activePopupWidget()->close();
  Release({20, 10}, Qt::RightButton);
  EXPECT_EQ(heard, "20 ");
}

}  // namespace
}  // namespace terramark::window
