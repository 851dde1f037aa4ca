#include <gtest/gtest.h>

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "window/qtdesktop.h"
#include "window/windowsupport.h"

namespace terramark::window {
namespace {

struct LongTexts : testing::Test, TestWindow {};

const std::string Path = "C:/" + std::string(3'000'000, 'W') + "/map.bmp";

TEST_F(LongTexts, AreShownInPart) {
  Form.Message.Caption = Form.LoadMap.Caption = Form.Frame1.Caption = Path;
  for (const QString& shown :
       {Of<QPushButton>(Form.LoadMap).text(), Of<QLabel>(Form.Message).text()}) {
    EXPECT_EQ(shown.size(), 500);
    EXPECT_TRUE(shown.startsWith("C:/WW") && shown.contains(QChar(0x2026)));
    EXPECT_TRUE(shown.endsWith("WW/map.bmp"));
  }
  EXPECT_EQ(Of<QGroupBox>(Form.Frame1).title().size(), 500);
  EXPECT_LT(QtDesktop().MeasureText(Path).Width, 500 * 20);
}

TEST_F(LongTexts, MakeNoBoxLargerThanAScreen) {
  for (const std::string& text : {Path, std::string(3'000'000, '\n'), std::string(400, 'W')}) {
    QTimer::singleShot(20, [] {
      QWidget& box = *QApplication::activeModalWidget();
      EXPECT_TRUE(box.width() < 800 && box.height() < 600) << box.width() << " x " << box.height();
      box.close();
    });
    QtDesktop().MsgBox(text, forms::Buttons::Ok, "Terramark");
  }
}

}  // namespace
}  // namespace terramark::window
