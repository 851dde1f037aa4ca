#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <string>

#include "document/numbers.h"
#include "windowsupport.h"

namespace terramark::qt {
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

TEST(WindowKeys, TheFormHearsArrowsBeforeTheControlAndNoRepeats) {
  TestWindow window;
  Form1& form = window.Form;
  std::string heard;
  form.KeyUp = [&](const forms::KeyEvent& key) { heard += std::to_string(key.KeyCode) + " "; };
  form.EditText.KeyUp = [&](const forms::KeyEvent&) { heard += "box "; };
  for (const char* name : {"EditText", "ColBar(0)", "AddTer"}) {
    auto& widget = *window.Window.findChild<QWidget*>(name);
    widget.setFocus();
    // A repeat comes marked as one, or else only both halves at the same time tell.
    for (const bool marked : {true, false}) {
      for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent half(type, Qt::Key_Up, Qt::NoModifier, {}, marked);
        half.setTimestamp(5000);
        QCoreApplication::sendEvent(&widget, &half);
      }
    }
    window.Key(Qt::Key_Up);
    window.Key(Qt::Key_Down);
    QTest::qWait(50);
    EXPECT_EQ(QApplication::focusWidget(), &widget);
  }
  EXPECT_EQ(heard, "38 box 40 box 38 40 38 40 ");
}

TEST(WindowKeys, TypingIsHeldToTheLimitWhereTheCaretStands) {
  TestWindow window;
  forms::TextBox& box = window.Form.EditText;
  auto& line = window.Of<QLineEdit>(box);
  box.SetFocus();
  window.Type("0123456789abcdefXY");
  EXPECT_EQ(box.Text.Get(), "0123456789abcdef");
  line.setCursorPosition(3);
  window.Type("Z");
  EXPECT_EQ(box.Text.Get(), "0123456789abcdef") << "the end was pushed out";

  box.Text = "a text of more than sixteen";
  EXPECT_EQ(line.text(), "a text of more than sixteen");
  window.Key(Qt::Key_End);
  window.Key(Qt::Key_Backspace);
  window.Type("nX");
  EXPECT_EQ(box.Text.Get(), "a text of more than sixtee") << "it may only become shorter";

  window.Form.Text1.Text = std::string(40000, 'x');
  EXPECT_EQ(window.Of<QLineEdit>(window.Form.Text1).text().size(), 40000);
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
  EXPECT_EQ(atCharacters, "15 5 5 ") << "the text before each key that makes a character";
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

  // The menu takes the release; the next press must not still belong to the box.
  window.Press({20, 10}, Qt::RightButton);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(heard, "11 20 ");
  QApplication::activePopupWidget()->close();
  window.Release({20, 10}, Qt::RightButton);
  EXPECT_EQ(heard, "11 20 ");
}

}  // namespace
}  // namespace terramark::qt
