#include "pictures/cp1252.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>

#include "window/windowsupport.h"

namespace terramark::window {
namespace {

TEST(Cp1252, EveryByteGoesRoundAndOnlyWhatItLacksIsLost) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(pictures::ToCp1252(pictures::FromCp1252(all)), all);
  EXPECT_EQ(pictures::FromCp1252("\x80\x9F\xA0\x81"), QStringLiteral("\u20AC\u0178\u00A0\u0081"));
  EXPECT_EQ(pictures::ToCp1252(QStringLiteral("\u0080\u0100\U0001F600")), "???");
}

TEST(Cp1252, LongTextsComposeInPiecesAsTheyDoWhole) {
  // The lead moves the seams over every place in a syllable.
  for (const char16_t* syllable : {u"e\u0323\u0302", u"\u1112\u1161\u11AB"}) {
    for (const char* lead : {"", "x", "xx"}) {
      const QString text = lead + QString::fromUtf16(syllable).repeated(300);
      EXPECT_EQ(pictures::ComposedForm(text), text.normalized(QString::NormalizationForm_C));
    }
  }
  const QString marks(2000, QChar(0x0301));
  EXPECT_EQ(pictures::ComposedForm("e" + marks), QChar(0xE9) + marks.chopped(1));
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

TEST(Cp1252, PastedTextIsShownAsTheFileWillHoldIt) {
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
