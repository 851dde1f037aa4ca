#include <gtest/gtest.h>

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "qt/cp1252.h"
#include "qt/qtdesktop.h"
#include "windowsupport.h"

namespace terramark::qt {
namespace {

const std::string Path = "C:/" + std::string(3'000'000, 'W') + "/map.bmp";

TEST(LongTexts, AreShownInPartAndKeptWhole) {
  TestWindow window;
  Form1& form = window.Form;
  form.Message.Caption = Path;
  form.LoadMap.Caption = Path;
  form.Frame1.Caption = Path;
  const QString label = window.Of<QLabel>(form.Message).text();
  const QString button = window.Of<QPushButton>(form.LoadMap).text();
  const QString frame = window.Of<QGroupBox>(form.Frame1).title();
  for (const QString& shown : {label, button, frame}) {
    EXPECT_EQ(shown.size(), 500);
    EXPECT_TRUE(shown.startsWith("C:/WW") && shown.contains(QChar(0x2026)));
  }
  EXPECT_TRUE(button.endsWith("WW/map.bmp"));
  EXPECT_EQ(form.Message.Caption.Get(), Path);
  EXPECT_LT(QtDesktop().MeasureText(Path).Width, 500 * 20);
}

TEST(LongTexts, ABoxIsSmallerThanAScreen) {
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
  // The lead moves every kind of seam over every place in the texts.
  const QString korean = QStringLiteral("\u1112\u1161\u11AB");
  for (const QString& syllable :
       {QStringLiteral("e\u0323\u0302"), korean, QString("\U0001D157\U0001D165")}) {
    for (const char* lead : {"", "x", "xx"}) {
      const QString text = lead + syllable.repeated(300);
      EXPECT_EQ(ComposedForm(text), text.normalized(QString::NormalizationForm_C));
    }
  }
  const QString marks(2000, QChar(0x0301));
  EXPECT_EQ(ComposedForm("e" + marks), QChar(0xE9) + marks.chopped(1));
}

}  // namespace
}  // namespace terramark::qt
