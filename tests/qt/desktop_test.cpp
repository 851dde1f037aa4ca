#include <gtest/gtest.h>

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <functional>

#include "qt/cp1252.h"
#include "qt/mainwindow.h"
#include "qt/qtdesktop.h"
#include "shell/aboutform.h"
#include "shell/form1.h"

namespace terramark::qt {
namespace {

/// Does something to the modal window that is about to come up.
void WhileModal(const std::function<void(QWidget&)>& act) {
  QTimer::singleShot(20, [act] { act(*QApplication::activeModalWidget()); });
}

TEST(Cp1252, EveryByteGoesRoundAndOnlyWhatItLacksIsLost) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(ToCp1252(FromCp1252(all)), all);
  EXPECT_EQ(FromCp1252("\x80\x9F\xA0\x81"), QStringLiteral("\u20AC\u0178\u00A0\u0081"));
  EXPECT_EQ(ToCp1252(QStringLiteral("\u0080\u0100\U0001F600")), "???");
}

TEST(Desktop, BoxesAnswerByButtonAndNoWhenClosed) {
  QtDesktop desktop;
  const auto ask = [&](Qt::Key key) {
    WhileModal([key](QWidget& box) { QTest::keyClick(&box, key); });
    return desktop.MsgBox("Exit Terramark", forms::Buttons::YesNo, "Terramark");
  };
  EXPECT_EQ(ask(Qt::Key_Return), forms::Answer::No);
  EXPECT_EQ(ask(Qt::Key_Escape), forms::Answer::No);
  WhileModal([](QWidget& box) {
    const auto buttons = box.findChildren<QPushButton*>();
    auto* first = buttons[0]->x() < buttons[1]->x() ? buttons[0] : buttons[1];
    QTest::mouseClick(first, Qt::LeftButton);
  });
  EXPECT_EQ(desktop.MsgBox("Clear whole map?", forms::Buttons::YesNo, "Terramark"),
            forms::Answer::Yes);
  WhileModal([](QWidget& box) { box.close(); });
  EXPECT_EQ(desktop.MsgBox("Failed", forms::Buttons::Ok, "Terramark"), forms::Answer::Ok);
}

TEST(Desktop, TheAboutBoxEndsByItsButtonAndByEscape) {
  QtDesktop desktop;
  Form1 form(desktop);
  int shown = 0;
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape}) {
    WhileModal([&](QWidget& about) {
      EXPECT_EQ(about.windowTitle(), "About Terramark");
      EXPECT_EQ(about.minimumSize(), QSize(337, 97));
      EXPECT_EQ(about.maximumSize(), QSize(337, 97));
      ++shown;
      QTest::keyClick(about.focusWidget(), key);
    });
    DBPush1_MouseUp(form);
  }
  EXPECT_EQ(shown, 3);
}

TEST(Desktop, TheFileDialogTakesNewNamesAndLeavesTheFolderAlone) {
  const QTemporaryDir folder;
  const QString before = QDir::currentPath();
  QDir::setCurrent(folder.path());
  const std::string here = QDir::currentPath().toStdString();
  QtDesktop desktop;
  forms::CommonDialog dialog{"*.wmf;*.bmp", "*.wmf;*.bmp", true};
  const auto choose = [&](const QString& name, Qt::Key key) {
    WhileModal([&](QWidget& chooser) {
      EXPECT_EQ(static_cast<QFileDialog&>(chooser).nameFilters().first(), "*.wmf *.bmp");
      auto* line = chooser.findChild<QLineEdit*>();
      line->setText(name);
      QTest::keyClick(line, key);
    });
    desktop.ShowOpen(dialog);
    return dialog.FileName;
  };
  EXPECT_EQ(choose("no.tml", Qt::Key_Escape), "*.wmf;*.bmp");
  EXPECT_EQ(choose(QStringLiteral("caf\u00E9.tml"), Qt::Key_Return), here + "/caf\xE9.tml");
  EXPECT_EQ(desktop.NativePath(dialog.FileName), here + "/caf\u00E9.tml");
  EXPECT_EQ(choose(QStringLiteral("\u4E2D.tml"), Qt::Key_Return), here + "/?.tml");
  EXPECT_FALSE(dialog.FileNameFits);
  EXPECT_EQ(QDir::currentPath().toStdString(), here);
  QDir::setCurrent(before);
}

TEST(Desktop, OneHelpWindowShowsTheTopicAskedFor) {
  QtDesktop desktop;
  const auto pages = [] {
    QStringList texts;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
      const auto* page = window->findChild<QTextBrowser*>("HelpPage");
      if (page != nullptr) texts += page->toPlainText();
    }
    return texts.join("|").toStdString();
  };
  desktop.ShowHelp("TMRK.HLP", 13);
  desktop.ShowHelp("TMRK.HLP", 12);
  EXPECT_EQ(pages().substr(0, 22), "Topic 12: Card symbols");
  EXPECT_EQ(pages().find('|'), std::string::npos);
  desktop.ShowHelp("TMRK.HLP", -3);
  EXPECT_NE(pages().find("no such help topic"), std::string::npos);
}

TEST(Desktop, DrawsAreBelowOneAndRepeatWithTheirSeed) {
  QtDesktop desktop;
  desktop.Randomize(75907.5F);
  const float first = desktop.Rnd();
  float highest = 0;
  for (int i = 0; i < 100000; ++i) highest = std::max(highest, desktop.Rnd());
  EXPECT_TRUE(highest > 0.99F && highest < 1.0F);
  desktop.Randomize(75907.5F);
  EXPECT_EQ(desktop.Rnd(), first);
}

TEST(Desktop, PicturesComeRowByRowFromTheNamedFile) {
  const QTemporaryDir folder;
  QImage image(3, 2, QImage::Format_RGB888);  // rows of a bitmap file are padded
  image.fill(Qt::white);
  image.setPixel(2, 1, 0xFF123456);
  const QString path = folder.filePath(QStringLiteral("\u00FC.bmp"));
  ASSERT_TRUE(image.save(path));
  QtDesktop desktop;
  const forms::Picture picture = desktop.LoadPicture(ToCp1252(path), 60, 40);
  ASSERT_NE(picture, nullptr);
  EXPECT_EQ(picture->Pixels, (std::vector<std::uint32_t>{0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF,
                                                         0xFFFFFFFF, 0xFFFFFFFF, 0xFF123456}));
  EXPECT_EQ(desktop.LoadPicture("", 60, 40)->Width, 0);
  EXPECT_EQ(desktop.LoadPicture(ToCp1252(folder.path()), 60, 40), nullptr);
}

TEST(Desktop, AFailureAndTheClosedWindowEndTheProcess) {
  QtDesktop desktop;
  Form1 form(desktop);
  EXPECT_EXIT(desktop.End(1), testing::ExitedWithCode(1), "");
  EXPECT_EXIT(MainWindow(form).close(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace terramark::qt
