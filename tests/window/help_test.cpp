#include <gtest/gtest.h>

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QTest>
#include <QTextBlock>
#include <algorithm>

#include "helpview/besidewindow.h"
#include "helpview/helppage.h"
#include "helpview/helptopics.h"
#include "shell/form1controls.h"
#include "window/qtdesktop.h"

namespace terramark::window {
namespace {

TEST(HelpTopics, EveryControlHasATopicAndEveryLinkAndPictureATarget) {
  const auto topics = helpview::ReadHelpTopics();
  for (const ControlRow<Form1>& row : Form1Controls()) {
    if (row.HelpTopic == 0) continue;
    EXPECT_EQ(topics[helpview::TopicIndex(topics, row.HelpTopic)].Number, row.HelpTopic);
  }
  const QString contents = topics[helpview::TopicIndex(topics, 2)].Text.section("## ", 1, 1);
  int pictures = 0;
  for (const helpview::HelpTopic& topic : topics) {
    EXPECT_NE(topic.Title, "") << topic.Number;
    const QString link = "](" + topic.Source.fileName() + ")";
    EXPECT_TRUE(topic.Number == 2 || contents.contains(link)) << link.toStdString();
    auto targets = QRegularExpression("\\]\\(([^)]*)\\)").globalMatch(topic.Text);
    while (targets.hasNext()) {
      const QString target = targets.next().captured(1);
      EXPECT_TRUE(QFile::exists(":/help/" + target)) << target.toStdString();
      if (target.endsWith(".png")) ++pictures;
    }
  }
  EXPECT_GT(pictures, 0);
}

TEST(HelpSearch, TopicsWithAllWordsAreFound) {
  const QStringList texts{"Red sea", "the sea, hundred", "Reddish REDs, sea"};
  EXPECT_EQ(
      helpview::FindWords(texts, " SEA\tred "),
      (std::vector<helpview::HelpMatch>{{0, 0, 3}, {0, 4, 3}, {2, 0, 3}, {2, 8, 3}, {2, 14, 3}}));
  EXPECT_EQ(helpview::FindWords({"++a"}, "+ +a"),
            (std::vector<helpview::HelpMatch>{{0, 0, 1}, {0, 1, 1}}));
  EXPECT_EQ(helpview::FindWords(texts, "the  SEA"), (std::vector<helpview::HelpMatch>{{1, 0, 7}}));
  EXPECT_TRUE(helpview::FindWords(texts, " ").empty());
}

struct HelpTest : testing::Test {
  QtDesktop Desktop;
  QWidget* Window = nullptr;

  void Open(int topic) {
    Desktop.ShowHelp(topic);
    const auto all = QApplication::topLevelWidgets();
    const auto is = [](const QWidget* window) { return window->objectName() == "Help"; };
    ASSERT_EQ(std::ranges::count_if(all, is), 1);
    Window = *std::ranges::find_if(all, is);
    ASSERT_TRUE(QTest::qWaitForWindowActive(Window));
  }
  helpview::HelpPage& Page() { return *Window->findChild<helpview::HelpPage*>(); }
  QListWidget& Contents() { return *Window->findChild<QListWidget*>(); }
  std::string Said() { return Window->findChild<QLabel*>()->text().toStdString(); }
  /// The page's heading, when the contents mark it.
  std::string Shown() {
    const QString heading = Page().document()->firstBlock().text();
    return heading == Contents().currentItem()->text() ? heading.toStdString() : "another";
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers with = {}) {
    QTest::keyClick(Window->focusWidget(), key, with);
  }
};

TEST_F(HelpTest, OneWindowShowsTheTopicsAskedForAndGoesBack) {
  Open(13);
  QWidget other;
  other.show();
  for (const bool minimized : {false, true}) {
    if (minimized) Window->showMinimized();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    Open(12);
    EXPECT_FALSE(Window->isMinimized());
  }
  EXPECT_EQ(Shown(), "Card symbols");
  Open(-3);
  EXPECT_EQ(Shown(), "Terramark");
  for (const char* nowhere : {"99-nowhere.md", "pictures", "https:10-links.md"}) {
    Page().setSource(QUrl(nowhere));
    EXPECT_EQ(Shown(), "Terramark") << nowhere;
  }
  Page().setSource(QUrl("10-links.md"));
  Contents().setCurrentRow(0);
  Key(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Shown(), "Links");
  Key(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Shown(), "Terramark");
  Window->resize(500, 400);
  const auto picture =
      Page().document()->resource(QTextDocument::ImageResource, QUrl("pictures/glance.png"));
  EXPECT_LE(picture.value<QImage>().deviceIndependentSize().width(), Page().viewport()->width());
  const double before = Page().font().pointSizeF();
  Key(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_GT(Page().font().pointSizeF(), before);
  QWheelEvent wheel({9, 9}, {}, {}, {0, 9999}, {}, Qt::ControlModifier | Qt::ShiftModifier, {},
                    false);
  QApplication::sendEvent(Page().viewport(), &wheel);
  EXPECT_LT(Page().font().pointSizeF(), 5 * before);
  Key(Qt::Key_F, Qt::ControlModifier);
  Key(Qt::Key_Escape);
  EXPECT_FALSE(Window->isVisible());
  Open(16);
  EXPECT_EQ(Shown(), "Armies");
}

TEST(HelpPlace, CoversNothingOfTheEditorWhereThereIsRoomBesideIt) {
  const QRect room(0, 20, 1600, 1000);
  const auto place = [&](QRect editor) {
    return helpview::PlaceBesideWindow(room, editor, {700, 500}, {500, 300});
  };
  EXPECT_EQ(place({100, 100, 800, 600}), QRect(900, 100, 700, 500)) << "on its right";
  EXPECT_EQ(place({800, 700, 800, 320}), QRect(100, 520, 700, 500)) << "on its left";
  EXPECT_EQ(place({100, 20, 1300, 450}), QRect(100, 470, 700, 500)) << "below";
  EXPECT_EQ(place({100, 540, 1300, 480}), QRect(100, 40, 700, 500)) << "above";
  EXPECT_EQ(place({520, 100, 900, 700}), QRect(0, 100, 520, 500)) << "smaller";
  EXPECT_EQ(place({0, 20, 1300, 900}), QRect(900, 20, 700, 500)) << "covers least";
}

TEST_F(HelpTest, OpensBesideTheEditorEachTimeAndStaysWhereItWasPutWhileOpen) {
  QWidget editor;
  editor.setGeometry(720, 0, 80, 700);
  editor.show();
  Desktop.SetDialogParent(&editor);
  Open(13);
  Window->resize(640, 400);
  Window->move(30, 90);
  Open(12);
  EXPECT_EQ(Window->pos(), QPoint(30, 90));
  Window->close();
  Open(13);
  EXPECT_FALSE(Window->frameGeometry().intersects(editor.frameGeometry()));
  editor.move(0, 0);
  Window->close();
  Open(13);
  EXPECT_FALSE(Window->frameGeometry().intersects(editor.frameGeometry()));
}

TEST_F(HelpTest, TabGoesFromLinkToLinkAndBackOutOfThePage) {
  Open(2);
  std::string path;
  for (const bool back : {true, false, false, false, true, true}) {
    Key(back ? Qt::Key_Backtab : Qt::Key_Tab, back ? Qt::ShiftModifier : Qt::NoModifier);
    const bool inPage = Window->focusWidget() == &Page();
    path += inPage ? "page " + Page().textCursor().selectedText().toStdString() : "contents";
    path += "; ";
    EXPECT_TRUE(inPage || Window->focusWidget() == &Contents());
  }
  EXPECT_EQ(path,
            "contents; page ; page Validating a map; page Refreshing the map; "
            "page Validating a map; contents; ");
}

TEST_F(HelpTest, ASearchNarrowsTheContentsAndGoesRoundTheTopics) {
  Open(11);
  Key(Qt::Key_F, Qt::ControlModifier);
  QTest::keyClicks(Window->focusWidget(), "map sample");
  std::vector<std::string> having;
  for (int row = 0; row < Contents().count(); ++row) {
    if (!Contents().item(row)->isHidden())
      having.push_back(Contents().item(row)->text().toStdString());
  }
  EXPECT_EQ(having.size(), 2U);
  EXPECT_EQ(Said().substr(Said().find(" in ")), " in 2 topics");
  std::vector<std::string> visited;
  const auto places = Said().substr(0, Said().find(' '));
  for (int i = 0; i < std::stoi(places); ++i) {
    Key(i % 2 == 0 ? Qt::Key_Return : Qt::Key_F3);
    const QString place = QString::fromStdString(Said());
    Key(Qt::Key_F3, Qt::ShiftModifier);
    Key(Qt::Key_F3);
    EXPECT_EQ(Said(), place.toStdString()) << "there and back";
    const QString found = Page().textCursor().selectedText().toLower();
    EXPECT_TRUE(found == "sample" || found == "map") << found.toStdString();
    if (visited.empty() || visited.back() != Shown()) visited.push_back(Shown());
  }
  std::ranges::sort(visited);
  std::ranges::sort(having);
  EXPECT_EQ(visited, having);
  EXPECT_GT(Page().extraSelections().size(), 1);
  Key(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Said().substr(Said().find(" in ")), " in 2 topics") << "and not a place elsewhere";
  QTest::keyClicks(Window->focusWidget(), "x");
  EXPECT_EQ(Said(), "Not found");
}

}  // namespace
}  // namespace terramark::window
