#include <gtest/gtest.h>

#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <algorithm>
#include <array>
#include <chrono>
#include <climits>
#include <ctime>
#include <functional>
#include <new>

#include "canvas/refreshmap.h"
#include "commands/aboutform.h"
#include "paint/cp1252.h"
#include "shell/form1.h"
#include "support/editortest.h"
#include "window/filedialog.h"
#include "window/mainwindow.h"
#include "window/qtdesktop.h"

namespace terramark::window {

/// Of large blocks so many are still to be had; the linker leads the editor's operator new here.
static int LargeBlocksLeft = INT_MAX;
extern "C" void* RealNew(std::size_t size) asm("__real__Znwm");
extern "C" void* RationedNew(std::size_t size) asm("__wrap__Znwm");
void* RationedNew(std::size_t size) {
  if (size > 16384 && LargeBlocksLeft-- == 0) throw std::bad_alloc();
  return RealNew(size);
}

namespace {

/// Does something to the modal window that is about to come up.
void WhileModal(const std::function<void(QWidget&)>& act) {
  QTimer::singleShot(20, [act] { act(*QApplication::activeModalWidget()); });
}

struct DesktopTest : testing::Test {
  QtDesktop Desktop;
  Form1 Form{Desktop};
};

TEST_F(DesktopTest, BoxesAnswerByButtonAndNoWhenClosed) {
  const auto ask = [&](Qt::Key key) {
    WhileModal([key](QWidget& box) { QTest::keyClick(&box, key); });
    return Desktop.MsgBox("Exit Terramark", forms::Buttons::YesNo, "Terramark");
  };
  EXPECT_EQ(ask(Qt::Key_Return), forms::Answer::No);
  EXPECT_EQ(ask(Qt::Key_Escape), forms::Answer::No);
  WhileModal([](QWidget& box) {
    const auto buttons = box.findChildren<QPushButton*>();
    auto* first = buttons[0]->x() < buttons[1]->x() ? buttons[0] : buttons[1];
    QTest::mouseClick(first, Qt::LeftButton);
  });
  EXPECT_EQ(Desktop.MsgBox("Clear whole map?", forms::Buttons::YesNo, "Terramark"),
            forms::Answer::Yes);
  WhileModal([](QWidget& box) { box.close(); });
  EXPECT_EQ(Desktop.MsgBox("Failed", forms::Buttons::Ok, "Terramark"), forms::Answer::Ok);
}

TEST_F(DesktopTest, TheAboutBoxEndsByItsButtonAndByEscape) {
  int shown = 0;
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape}) {
    WhileModal([&](QWidget& about) {
      EXPECT_EQ(about.windowTitle(), "About Terramark");
      EXPECT_EQ(about.findChild<QWidget*>("inside")->size(), QSize(337, 97));
      EXPECT_EQ(about.minimumSize(), about.maximumSize());
      auto* text = about.findChild<QPlainTextEdit*>();
      QTest::keyClick(text, Qt::Key_End, Qt::ShiftModifier);
      EXPECT_TRUE(text->isReadOnly() && text->textCursor().hasSelection());
      ++shown;
      QTest::keyClick(about.focusWidget(), key);
    });
    DBPush1_MouseUp(Form);
  }
  EXPECT_EQ(shown, 3);
}

void ExpectOneFileInWholeColumns(QWidget& chooser) {
  EXPECT_EQ(static_cast<QFileDialog&>(chooser).nameFilters(),
            (QStringList{"Pictures (*.wmf *.bmp)", "All files (*)"}));
  auto& list = *chooser.findChild<QTreeView*>();
  const QHeaderView& columns = *list.header();
  EXPECT_TRUE(QTest::qWaitFor([&] {
    bool whole = list.model()->rowCount(list.rootIndex()) == 1;
    for (int i = 0; i < columns.count(); ++i) {
      whole &= columns.sectionSize(i) >= list.QAbstractItemView::sizeHintForColumn(i);
    }
    const int most = chooser.screen()->availableGeometry().width();
    return whole && (columns.length() <= list.viewport()->width() || chooser.width() == most);
  }));
  // A file that waits for its reader must not be looked into to tell its kind.
  static_cast<QFileDialog&>(chooser).selectNameFilter("All files (*)");
  EXPECT_TRUE(QTest::qWaitFor([&] { return list.model()->rowCount(list.rootIndex()) == 2; }));
  EXPECT_FALSE(list.model()->index(1, 2, list.rootIndex()).data().toString().contains("BMP"));
}

TEST_F(DesktopTest, TheFileDialogTakesAnyNameAndBeginsWhereTheLastWasChosen) {
  const QTemporaryDir folder;
  const QString before = QDir::currentPath();
  QDir::setCurrent(folder.path());
  const std::string here = QDir::currentPath().toStdString();
  EXPECT_TRUE(QFile::copy(SAMPLES "/europe.bmp", "A NAME THAT IS LONGER THAN MOST NAMES.BMP"));
  EXPECT_TRUE(QFile::copy(SAMPLES "/europe.bmp", "picture"));
  forms::CommonDialog dialog{"*.wmf;*.bmp", "*.wmf;*.bmp", "", true, true};
  const auto choose = [&](const char* name, Qt::Key key) {
    WhileModal([&](QWidget& chooser) {
      if (key == Qt::Key_Escape) ExpectOneFileInWholeColumns(chooser);
      auto* line = chooser.findChild<QLineEdit*>();
      line->setText(name);
      QTest::keyClick(line, key);
    });
    Desktop.ShowOpen(dialog);
    return dialog.FileName;
  };
  EXPECT_EQ(choose("no.tml", Qt::Key_Escape), "*.wmf;*.bmp");
  EXPECT_EQ(choose("caf\u00E9.tml", Qt::Key_Return), here + "/caf\xE9.tml");
  EXPECT_TRUE(dialog.FileNameFits);
  // It would end the line of the layout that holds the name.
  for (const char* name : {"a\nb.tml", "a\rb.tml"}) {
    EXPECT_EQ(choose(name, Qt::Key_Enter), here + "/" + name);
    EXPECT_FALSE(dialog.FileNameFits || dialog.FileTitleFits);
  }
  QDir().mkdir("\u4E2D");
  EXPECT_EQ(choose("\u4E2D/a.bmp", Qt::Key_Return), here + "/?/a.bmp");
  EXPECT_TRUE(!dialog.FileNameFits && dialog.FileTitle == "a.bmp" && dialog.FileTitleFits);
  EXPECT_EQ(QDir::currentPath().toStdString(), here) << "choosing enters no folder";
  QFile::copy(SAMPLES "/europe.bmp", "\u4E2D/\u0141.bmp");
  EXPECT_EQ(choose("\u0141.bmp", Qt::Key_Return), here + "/?/?.bmp");
  EXPECT_FALSE(dialog.FileTitleFits);
  EXPECT_TRUE(Desktop.LoadPicture(dialog.FileName, 60, 40));
  Desktop.EnterFolderOf(dialog.FileName);
  EXPECT_EQ(QDir::currentPath().toStdString(), here + "/\u4E2D");
  QDir::setCurrent(before);
}

TEST_F(DesktopTest, TheFileDialogSaysWhatItIsForAndAsksNothing) {
  const QTemporaryDir folder;
  const QString old = folder.filePath("old.tml");
  EXPECT_TRUE(QFile::copy(SAMPLES "/europe.tml", old));
  for (const bool saves : {false, true}) {
    WhileModal([&](QWidget& chooser) {
      EXPECT_EQ(chooser.windowTitle(), saves ? "Save a Map Layout" : "Load a Map Layout");
      const auto buttons = chooser.findChildren<QPushButton*>();
      EXPECT_EQ(std::ranges::count(buttons, saves ? "&Save" : "&Open", &QPushButton::text), 1);
      auto* const line = chooser.findChild<QLineEdit*>();
      line->setText("old.tml");
      QTest::keyClick(line, Qt::Key_Return);
    });
    const char* const title = saves ? "Save a Map Layout" : "Load a Map Layout";
    const forms::CommonDialog asked{"*.tml", "", "", true, true, {title, saves}};
    EXPECT_EQ(AskForFile(asked, folder.path(), nullptr), old);
  }
}

TEST_F(DesktopTest, TheSideBarLeadsToTheSamplesBesideTheProgram) {
  QStringList places;
  WhileModal([&](QWidget& chooser) {
    auto& dialog = static_cast<QFileDialog&>(chooser);
    auto& bar = *dialog.findChild<QSplitter*>()->findChild<QListView*>();
    for (const QUrl& url : dialog.sidebarUrls()) {
      places += url.path();
      QTest::keyClick(&bar, Qt::Key_Down);
    }
    EXPECT_EQ(dialog.directory().path(), places.back()) << "the arrows go from place to place";
    chooser.close();
  });
  AskForFile({"*.tml", "", ""}, "/", nullptr);
  EXPECT_GE(places.size(), 3);
  EXPECT_EQ(places.back(), QDir(SAMPLES).canonicalPath());
}

TEST_F(DesktopTest, TheClockTellsTheLocalTime) {
  using Clock = std::chrono::system_clock;
  std::time_t second = 0;
  forms::DateTime now;
  float today = 0;
  do {
    second = Clock::to_time_t(Clock::now());
    now = Desktop.Now();
    today = Desktop.Timer();
  } while (Clock::to_time_t(Clock::now()) != second);
  const std::tm& local = *std::localtime(&second);
  EXPECT_EQ((std::array{now.Year - 1900, now.Month - 1, now.Day, now.Hour, now.Minute, now.Second}),
            (std::array{local.tm_year, local.tm_mon, local.tm_mday, local.tm_hour, local.tm_min,
                        local.tm_sec}));
  EXPECT_NEAR(today, (local.tm_hour * 60 + local.tm_min) * 60 + local.tm_sec, 1.01);
}

TEST_F(DesktopTest, DrawsAreBelowOneAndRepeatWithTheirSeed) {
  Desktop.Randomize(75907.5F);
  const float first = Desktop.Rnd();
  float highest = 0;
  for (int i = 0; i < 100000; ++i) highest = std::max(highest, Desktop.Rnd());
  EXPECT_TRUE(highest > 0.99F && highest < 1.0F);
  Desktop.Randomize(75907.5F);
  EXPECT_EQ(Desktop.Rnd(), first);
}

TEST_F(DesktopTest, PicturesComeRowByRowFromTheNamedFile) {
  const QTemporaryDir folder;
  QImage image(3, 2, QImage::Format_RGB888);  // rows of a bitmap file are padded
  image.fill(Qt::white);
  image.setPixel(2, 1, 0xFF123456);
  const QString path = folder.filePath(QStringLiteral("\u00FC.bmp"));
  ASSERT_TRUE(image.save(path));
  const forms::Picture picture = Desktop.LoadPicture(paint::ToCp1252(path), 60, 40).value();
  ASSERT_NE(picture, nullptr);
  EXPECT_EQ(picture->Pixels, (std::vector<std::uint32_t>{0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF,
                                                         0xFFFFFFFF, 0xFFFFFFFF, 0xFF123456}));
  EXPECT_EQ((*Desktop.LoadPicture("", 60, 40))->Width, 0);
  EXPECT_FALSE(Desktop.LoadPicture(paint::ToCp1252(folder.path()), 60, 40));
}

TEST_F(DesktopTest, WhatTheMemoryDoesNotHoldChangesNothing) {
  forms::PictureBox& box = Form.Picture1;
  Form.PictureFile = SAMPLES "/europe.bmp";
  const auto load = [&] { RefreshMap(Form); };
  const auto fill = [&] { box.FillToBorder(std::array{forms::PixelPoint{}}, 0); };
  const auto grow = [&] {
    try {
      box.Height = box.Height + 300;
    } catch (const std::bad_alloc&) {
    }
  };
  // How many blocks it takes to change the image.
  const auto blocks = [&](const std::function<void()>& act) {
    const auto before = box.Image().Pixels;
    const auto height = box.Height.Get();
    const forms::Picture picture = box.Picture;
    for (int count = 0; count < 20; ++count) {
      LargeBlocksLeft = count;
      act();
      LargeBlocksLeft = INT_MAX;
      if (box.Image().Pixels != before) return count;
      EXPECT_TRUE(box.Picture.Get() == picture && box.Height == height);
    }
    return -1;
  };
  EXPECT_GE(blocks(load), 1);
  EXPECT_EQ(&box.Backdrop(), box.Picture.Get().get()) << "the image takes none";
  EXPECT_EQ(blocks(fill), 2) << "two bits a pixel";
  EXPECT_EQ(blocks(grow), 1);
}

TEST_F(ChainTest, AFloodThatHasNoMemoryIsToldInRed) {
  LargeBlocksLeft = 0;
  EXPECT_EQ(Click(Form.Cvalid), "red: There is not enough memory to flood the map");
  LargeBlocksLeft = INT_MAX;
  EXPECT_EQ(Click(Form.Cvalid), "This map has no errors");
}

TEST_F(DesktopTest, AFailureAndTheClosedWindowEndTheProcess) {
  EXPECT_EXIT(Desktop.End(1), testing::ExitedWithCode(1), "");
  EXPECT_EXIT(MainWindow(Form).close(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace terramark::window
