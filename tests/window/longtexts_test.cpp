#include <gtest/gtest.h>

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "window/cp1252.h"
#include "window/qtdesktop.h"
#include "window/windowsupport.h"

namespace terramark::window {
namespace {

const std::string Path = "C:/" + std::string(3'000'000, 'W') + "/map.bmp";

TEST(LongTexts, AreShownInPart) {
  TestWindow window;
  Form1& form = window.Form;
  form.Message.Caption = form.LoadMap.Caption = form.Frame1.Caption = Path;
  for (const QString& shown :
       {window.Of<QPushButton>(form.LoadMap).text(), window.Of<QLabel>(form.Message).text()}) {
    EXPECT_EQ(shown.size(), 500);
    EXPECT_TRUE(shown.startsWith("C:/WW") && shown.contains(QChar(0x2026)));
    EXPECT_TRUE(shown.endsWith("WW/map.bmp"));
  }
  EXPECT_EQ(window.Of<QGroupBox>(form.Frame1).title().size(), 500);
  EXPECT_LT(QtDesktop().MeasureText(Path).Width, 500 * 20);
}

TEST(LongTexts, MakeNoBoxLargerThanAScreen) {
  for (const std::string& text : {Path, std::string(3'000'000, '\n'), std::string(400, 'W')}) {
    QTimer::singleShot(20, [] {
      QWidget& box = *QApplication::activeModalWidget();
      EXPECT_TRUE(box.width() < 800 && box.height() < 600) << box.width() << " x " << box.height();
      box.close();
    });
    QtDesktop().MsgBox(text, forms::Buttons::Ok, "Terramark");
  }
}

TEST(LongTexts, ComposeInPiecesAsTheyDoWhole) {
  // The lead moves the seams over every place in a syllable.
  for (const char16_t* syllable : {u"e\u0323\u0302", u"\u1112\u1161\u11AB"}) {
    for (const char* lead : {"", "x", "xx"}) {
      const QString text = lead + QString::fromUtf16(syllable).repeated(300);
      EXPECT_EQ(ComposedForm(text), text.normalized(QString::NormalizationForm_C));
    }
  }
  const QString marks(2000, QChar(0x0301));
  EXPECT_EQ(ComposedForm("e" + marks), QChar(0xE9) + marks.chopped(1));
}

}  // namespace
}  // namespace terramark::window
