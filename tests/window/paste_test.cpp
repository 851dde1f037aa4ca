#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>

#include "window/windowsupport.h"

namespace terramark::window {
namespace {

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

TEST(TextView, PastedTextIsShownAsTheFileWillHoldIt) {
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

}  // namespace
}  // namespace terramark::window
