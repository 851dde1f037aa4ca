#include <gtest/gtest.h>

#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QTreeView>
#include <climits>
#include <functional>
#include <new>

#include "canvas/refreshmap.h"
#include "qt/cp1252.h"
#include "qt/mainwindow.h"
#include "qt/qtdesktop.h"
#include "shell/aboutform.h"
#include "shell/form1.h"

namespace terramark::qt {

/// Of large blocks so many are still to be had; the linker leads the editor's operator new here.
constexpr std::size_t LargeBlock = std::size_t{64} * 1024;
static int LargeBlocksLeft = INT_MAX;
extern "C" void* RealNew(std::size_t size) asm("__real__Znwm");
extern "C" void* RationedNew(std::size_t size) asm("__wrap__Znwm");
void* RationedNew(std::size_t size) {
  if (size >= LargeBlock && LargeBlocksLeft-- == 0) throw std::bad_alloc();
  return RealNew(size);
}

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

class FileDialogTest : public testing::Test {
 protected:
  FileDialogTest() { QDir::setCurrent(folder_.path()); }
  ~FileDialogTest() override { QDir::setCurrent(before_); }

  /// Types a name into the dialog and ends it by a key, once what it shows has been seen.
  std::string Choose(
      const QString& name, Qt::Key key,
      const std::function<void(QFileDialog&)>& look = [](QFileDialog&) {}) {
    WhileModal([&](QWidget& chooser) {
      look(static_cast<QFileDialog&>(chooser));
      auto* line = chooser.findChild<QLineEdit*>();
      line->setText(name);
      QTest::keyClick(line, key);
    });
    Desktop.ShowOpen(Dialog);
    return Dialog.FileName;
  }

 private:
  const QTemporaryDir folder_;
  const QString before_ = QDir::currentPath();

 protected:
  const std::string Here = QFileInfo(folder_.path()).canonicalFilePath().toStdString();
  QtDesktop Desktop;
  forms::CommonDialog Dialog{"*.wmf;*.bmp", "*.wmf;*.bmp", "", true, true};
};

TEST_F(FileDialogTest, TakesNewNamesAndBeginsWhereTheLastWasChosen) {
  EXPECT_EQ(Choose("no.tml", Qt::Key_Escape), "*.wmf;*.bmp");
  EXPECT_EQ(Choose(QStringLiteral("caf\u00E9.tml"), Qt::Key_Return), Here + "/caf\xE9.tml");
  EXPECT_TRUE(Dialog.FileNameFits);
  EXPECT_EQ(Desktop.NativePath(Dialog.FileName), Here + "/caf\u00E9.tml");
  ASSERT_TRUE(QDir().mkdir(QStringLiteral("\u4E2D")));
  EXPECT_EQ(Choose(QStringLiteral("\u4E2D/a.tml"), Qt::Key_Return), Here + "/?/a.tml");
  EXPECT_FALSE(Dialog.FileNameFits);
  EXPECT_EQ(Dialog.FileTitle, "a.tml");
  EXPECT_TRUE(Dialog.FileTitleFits);
  EXPECT_EQ(QDir::currentPath().toStdString(), Here) << "choosing enters no folder";
  EXPECT_EQ(Choose("b\nc", Qt::Key_Return).substr(0, Here.size() + 3), Here + "/?/");
  EXPECT_EQ(Choose(QStringLiteral("\u0141.bmp"), Qt::Key_Return), Here + "/?/?.bmp");
  EXPECT_FALSE(Dialog.FileTitleFits);
  const std::string native = Here + "/\u4E2D/\u0141.bmp";
  EXPECT_EQ(Desktop.NativePath(Dialog.FileName), native);
  ASSERT_TRUE(QImage(3, 2, QImage::Format_RGB32).save(QString::fromStdString(native)));
  EXPECT_NE(Desktop.LoadPicture(Dialog.FileName, 60, 40), nullptr);
  Desktop.EnterFolderOf(Dialog.FileName);
  EXPECT_EQ(QDir::currentPath().toStdString(), Here + "/\u4E2D");
  EXPECT_EQ(Desktop.NativePath("?.bmp"), "?.bmp") << "only the whole name stands for it";
}

TEST_F(FileDialogTest, SaysItsFiltersInWordsAndShowsWholeColumns) {
  QFile("UPPER case, and longer than usual.BMP")
      .open(QFile::WriteOnly);
  Choose("", Qt::Key_Escape, [](QFileDialog& chooser) {
    EXPECT_EQ(chooser.nameFilters(), (QStringList{"Pictures (*.wmf *.bmp)", "All files (*)"}));
    auto& list = *chooser.findChild<QTreeView*>();
    EXPECT_TRUE(QTest::qWaitFor([&] { return list.model()->rowCount(list.rootIndex()) == 1; }));
    EXPECT_TRUE(QTest::qWaitFor([&] {
      int whole = 0;
      for (int column = 0; column < list.model()->columnCount(); ++column) {
        whole += static_cast<QAbstractItemView&>(list).sizeHintForColumn(column);
      }
      return whole <= list.header()->length() && whole <= list.viewport()->width();
    }));
  });
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

TEST(Desktop, APictureThatTheMemoryDoesNotHoldCannotBeRead) {
  const QTemporaryDir folder;
  QtDesktop desktop;
  Form1 form(desktop);
  form.PictureFile = ToCp1252(folder.filePath("map.bmp"));
  ASSERT_TRUE(QImage(600, 400, QImage::Format_RGB32).save(folder.filePath("map.bmp")));
  form.Picture1.FillToBorder(0, 0, 0);
  const auto before = form.Picture1.Image().Pixels;
  int failures = -1;
  do {
    EXPECT_EQ(form.Picture1.Image().Pixels, before);
    EXPECT_EQ(form.Picture1.Picture.Get(), nullptr);
    LargeBlocksLeft = ++failures;
  } while (!RefreshMap(form) && failures < 9);
  LargeBlocksLeft = INT_MAX;
  EXPECT_GE(failures, 2) << "a block for the picture and one for the image";
  EXPECT_EQ(form.Picture1.Image().Width, 600);
}

TEST(Desktop, AFailureAndTheClosedWindowEndTheProcess) {
  QtDesktop desktop;
  Form1 form(desktop);
  EXPECT_EXIT(desktop.End(1), testing::ExitedWithCode(1), "");
  EXPECT_EXIT(MainWindow(form).close(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace terramark::qt
