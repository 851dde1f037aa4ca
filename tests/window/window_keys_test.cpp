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

TEST(WindowKeys, TabWalksInTheOrderOfTheTable) {
  TestWindow window;
  std::string walk;
  for (int i = 0; i < 28; ++i) {
    walk += QApplication::focusWidget()->objectName().toStdString() + " ";
    EXPECT_EQ(&window.Of(*window.Form.ActiveControl()), QApplication::focusWidget());
    window.Key(Qt::Key_Tab);
  }
  EXPECT_EQ(walk,
            "Text1 EditText Symb PlColor(4) PlColor(3) PlColor(2) PlColor(1) Armypc LoadMpa "
            "LoadMap Cvalid SaveCFG DelAll TMHelp DBPush1 RefMap SwapTer ClearLink DelControl "
            "AddTer AddCont MakeNeibor SetCont ColBar(0) ColBar(1) ColBar(2) Quit PlColor(0) ");
  window.Form.EditText.SetFocus();
  EXPECT_EQ(QApplication::focusWidget(), &window.Of(window.Form.EditText));
  window.Click(window.Form.Quit);
  EXPECT_EQ(window.Form.ActiveControl(), &window.Form.Quit);
}

TEST(WindowKeys, TheFormHearsKeysBeforeTheControlAndWhenNoneHasThem) {
  TestWindow window;
  Form1& form = window.Form;
  std::string heard;
  form.KeyUp = [&](const forms::KeyEvent& key) { heard += std::to_string(key.KeyCode) + " "; };
  form.EditText.KeyUp = [&](const forms::KeyEvent&) { heard += "box "; };
  for (const char* name : {"EditText", "ColBar(0)", "AddTer"}) {
    auto& widget = *window.Window.findChild<QWidget*>(name);
    widget.setFocus();
    window.Key(Qt::Key_Up);
    window.Key(Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget(), &widget);
  }
  EXPECT_EQ(heard, "38 box 40 box 38 40 38 40 ");
  heard.clear();
  for (forms::Control* control :
       {static_cast<forms::Control*>(&form.Symb), static_cast<forms::Control*>(&form.ColBar(1)),
        static_cast<forms::Control*>(&form.PlColor(4))}) {
    forms::Control& frame = control == &form.ColBar(1) ? form.RGBFrame : *control;
    form.KeyUp = [&](const forms::KeyEvent&) {
      heard += control->Name() + " ";
      frame.Enabled = false;
    };
    control->SetFocus();
    window.Key(Qt::Key_Up);
    EXPECT_EQ(form.ActiveControl(), nullptr) << control->Name();
    window.Key(Qt::Key_Up);
    frame.Enabled = true;
    EXPECT_TRUE(window.Of(*control).hasFocus());
  }
  form.KeyUp = [&](const forms::KeyEvent& key) { heard += std::to_string(key.KeyCode) + " "; };
  QApplication::focusWidget()->clearFocus();
  window.Key(Qt::Key_Up);
  EXPECT_EQ(heard, "Symb Symb ColBar ColBar PlColor PlColor 38 ");
  window.Window.setFocus();
  window.Key(Qt::Key_Tab);
  EXPECT_EQ(form.ActiveControl(), &form.Text1) << "where Tab begins";
}

enum class Repeats { Marked, Unmarked, Late };

TEST(WindowKeys, AHeldKeyActsOnceAndABoxThatItFindsOpenKnowsNothingOfIt) {
  for (const Repeats repeats : {Repeats::Marked, Repeats::Unmarked, Repeats::Late}) {
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Up}) {
      TestWindow window;
      QDialog box(&window.Window);
      QPushButton answer("Yes", &box);
      int acts = 0;
      int answers = 0;
      const auto act = [&](const auto&) { ++acts; };
      window.Form.KeyUp = [&](const forms::KeyEvent& event) { acts += event.KeyCode == 38; };
      window.Form.AddTer.Click = act;
      QObject::connect(&answer, &QPushButton::clicked, [&answers] { ++answers; });
      window.Form.AddTer.SetFocus();
      const auto hold = [&](QWidget& in) {
        const bool marked = repeats == Repeats::Marked;
        for (int i = 0; i < 3; ++i) {
          window.Half(in, {QEvent::KeyRelease, key, {}, " ", marked});
          if (repeats == Repeats::Late) TestWindow::Settle();
          window.Half(in, {QEvent::KeyPress, key, {}, " ", marked}, 0);
        }
      };
      window.Half(window.Window, {QEvent::KeyPress, key, {}, " "});
      hold(window.Window);
      box.show();
      EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
      answer.setFocus();
      hold(box);
      window.Half(box, {QEvent::KeyRelease, key, {}, " "});
      EXPECT_EQ(answers, 0);
      window.Half(box, {QEvent::KeyPress, key, {}, " "});
      hold(box);
      window.Half(box, {QEvent::KeyRelease, key, {}, " "});
      TestWindow::Settle();
      EXPECT_EQ(answers, key == Qt::Key_Up ? 0 : 1);
      box.close();
      hold(window.Window);
      window.Half(window.Window, {QEvent::KeyRelease, key, {}, " "});
      TestWindow::Settle();
      // Held on until the box came, a key has done something only where its release was told early.
      EXPECT_EQ(acts, repeats == Repeats::Late ? 1 : 0);
      window.Form.AddTer.SetFocus();
      window.Half(window.Window, {QEvent::KeyPress, key, {}, " "});
      hold(window.Window);
      window.Half(window.Window, {QEvent::KeyRelease, key, {}, " "});
      TestWindow::Settle();
      EXPECT_EQ(acts, repeats == Repeats::Late ? 2 : 1);
    }
  }
}

TEST(WindowKeys, AReleaseIsToldBeforeWhatComesAfterIt) {
  TestWindow window;
  std::string order;
  window.Form.KeyUp = [&](const forms::KeyEvent& key) {
    order += std::to_string(key.KeyCode) + " ";
  };
  window.Form.AddTer.MouseUp = [&](const forms::MouseEvent&) { order += "press "; };
  window.Stroke(Qt::Key_Up, {}, 0);
  EXPECT_EQ(order, "") << "it may be half of a repeat";
  window.Click(window.Form.AddTer);
  window.Stroke(Qt::Key_Down, {}, 0);
  window.Stroke(Qt::Key_A, {}, 'a');
  EXPECT_EQ(order, "38 press 40 ");
  EXPECT_TRUE(QTest::qWaitFor([&] { return order == "38 press 40 0 "; })) << "time passed";

  for (const auto by : {QEvent::Wheel, QEvent::FocusOut, QEvent::WindowBlocked, QEvent::Close}) {
    order.clear();
    window.Stroke(Qt::Key_A, {}, 'a');
    TestWindow::Settle(by);
    EXPECT_EQ(order, "0 ") << by;
  }

  order.clear();
  for (int i = 0; i < 2; ++i) {
    window.Half(window.Window, {QEvent::KeyPress, Qt::Key_D, {}, "d"}, 0);
    window.Half(window.Window, {QEvent::KeyRelease, Qt::Key_D, {}, "d"}, 0);
  }
  TestWindow::Settle();
  EXPECT_EQ(order, "0 0 ") << "struck twice by a program, too soon for a repeat";

  QDialog box(&window.Window);
  window.Form.KeyUp = [&](const forms::KeyEvent&) {
    QMetaObject::invokeMethod(&box, &QDialog::reject, Qt::QueuedConnection);
    box.exec();
  };
  window.Stroke(Qt::Key_E, {}, 'e');
  window.Click(window.Form.AddTer);
  EXPECT_EQ(order, "0 0 ") << "pressed behind the box that the release brought up";
}

TEST(WindowKeys, AnEditIsHeldToTheLimitWhereItWasMade) {
  TestWindow window;
  forms::TextBox& box = window.Form.EditText;
  auto& line = window.Of<QLineEdit>(box);
  const auto paste = [&](const char* text) {
    QGuiApplication::clipboard()->setText(text);
    window.Key(Qt::Key_V, Qt::ControlModifier);
    return box.Text.Get();
  };
  box.SetFocus();
  window.Type("0123456789abcdefXY");
  EXPECT_EQ(box.Text.Get(), "0123456789abcdef");
  line.setCursorPosition(3);
  window.Type("Z");
  EXPECT_EQ(box.Text.Get(), "0123456789abcdef") << "the end was pushed out";
  EXPECT_EQ(line.cursorPosition(), 3);
  window.Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(box.Text.Get(), "") << "a refused letter took the way back along";
  window.Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
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
  window.Key(Qt::Key_End);
  window.Key(Qt::Key_Backspace);
  window.Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(box.Text.Get(), "a text of more than sixteen") << "taken back, nothing is lost";
  window.Key(Qt::Key_Backspace);
  window.Type("nX");
  EXPECT_EQ(box.Text.Get(), "a text of more than sixtee") << "it may only become shorter";
  box.Text = "Twentyfour letters and no";
  box.SelectAll();
  EXPECT_EQ(paste("Seventeen letters"), "Seventeen letter");
  box.SelectAll();
  window.Type("New");
  EXPECT_EQ(box.Text.Get(), "New");

  // Of a text that is long beyond reason the beginning is shown, and the rest is kept.
  window.Form.Text1.Text = std::string(65536, 'x') + "the end";
  EXPECT_EQ(window.Of<QLineEdit>(window.Form.Text1).text().size(), 65536);
  window.Form.Text1.SetFocus();
  window.Key(Qt::Key_Home);
  window.Key(Qt::Key_Delete);
  EXPECT_EQ(window.Of<QLineEdit>(window.Form.Text1).text().right(2), "xt");
  EXPECT_EQ(window.Form.Text1.Text.Get().substr(65533), "xxthe end");
}

TEST(WindowKeys, ARefusedEditShowsAtOnceWithTheCaretWhereItWas) {
  TestWindow window;
  forms::TextBox& box = window.Form.Armypc;
  auto& line = window.Of<QLineEdit>(box);
  std::string last;
  std::string atCharacters;
  box.KeyDown = [&](const forms::KeyEvent&) { last = box.Text; };
  box.KeyPress = [&](const forms::PlainEvent&) { atCharacters += box.Text.Get() + " "; };
  box.Change = [&](const forms::PlainEvent&) {
    if (ReadNumber(box.Text.Get()) == 0) box.Text = last;
  };
  box.Text = "15";
  box.SetFocus();
  line.setCursorPosition(1);
  window.Key(Qt::Key_Backspace);
  EXPECT_EQ(line.text(), "5");
  window.Key(Qt::Key_Delete);
  EXPECT_EQ(line.text(), "5");
  EXPECT_EQ(line.cursorPosition(), 0);
  window.Key(Qt::Key_End);
  window.Key(Qt::Key_Backspace);
  EXPECT_EQ(line.text(), "5");
  EXPECT_EQ(line.cursorPosition(), 1);
  window.Type("7");
  EXPECT_EQ(line.text(), "57");
  line.selectAll();
  window.Type("x8");
  EXPECT_EQ(line.text(), "8") << "the mark outlives a refusal";
  EXPECT_EQ(atCharacters, "15 5 5 57 57 ") << "the text before each key that makes a character";
}

struct PasteCase {
  const char* Before;
  QString Pasted;  // behind the first character
  const char* After;
  int Caret;
};

const PasteCase Pastes[] = {
    {"az", QStringLiteral("\u20AC\u00E9"), "a\x80\xE9z", 3},
    {"az", QStringLiteral("\u4E2D\U0001F600x"), "a??xz", 4},
    {"az", QStringLiteral("e\u0301"), "a\xE9z", 2},
    {"az", QString(QChar(0x81)), "a\x81z", 2},
    {"az", "1\r\n2\t3", "a1 2 3z", 6},
    {"a\tz", "\n", "a \tz", 2},
};

TEST(WindowKeys, PastedTextIsShownAsTheFileWillHoldIt) {
  TestWindow window;
  forms::TextBox& box = window.Form.Text1;
  auto& line = window.Of<QLineEdit>(box);
  for (const PasteCase& paste : Pastes) {
    box.Text = paste.Before;
    line.setCursorPosition(1);
    QGuiApplication::clipboard()->setText(paste.Pasted);
    window.Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text.Get(), paste.After);
    EXPECT_EQ(line.cursorPosition(), paste.Caret) << paste.After;
    EXPECT_EQ(line.text().size(), static_cast<qsizetype>(box.Text.Get().size()));
  }
}

TEST(WindowKeys, TheMouseSelectsTextAndIsHeardByTheForm) {
  TestWindow window;
  Form1& form = window.Form;
  auto& line = window.Of<QLineEdit>(form.Text1);
  std::string heard;
  form.Text1.MouseUp = [&](const forms::MouseEvent& event) {
    heard += std::to_string(event.Button) + std::to_string(event.Shift) + " ";
  };
  form.Text1.Text = "some words";
  window.Press({3, 10});
  window.Move({200, 10});
  window.Release({200, 10}, Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_EQ(line.selectedText(), "some words");
  // With the Shift key a press asks for help and for nothing else.
  for (const auto button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
    window.Press({3, 10}, button, Qt::ShiftModifier);
    window.Move({100, 10});
    window.Release({100, 10}, button, Qt::ShiftModifier);
    EXPECT_EQ(line.selectedText(), "some words");
  }
  EXPECT_EQ(heard, "11 11 41 21 ");
  heard.clear();

  // The menu takes the release; the next press must not still belong to the box.
  window.Press({20, 10}, Qt::RightButton);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(heard, "20 ");
  QApplication::activePopupWidget()->close();
  window.Release({20, 10}, Qt::RightButton);
  EXPECT_EQ(heard, "20 ");
}

}  // namespace
}  // namespace terramark::window
