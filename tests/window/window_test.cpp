#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QToolTip>
#include <string>
#include <vector>

#include "paint/lettering.h"
#include "window/qtdesktop.h"
#include "window/windowsupport.h"

namespace terramark::window {
namespace {

struct WindowTest : testing::Test, TestWindow {};

struct PlaceCase {
  const char* Name;
  QRect At15;  // twips per pixel
  QRect At12;
};

// Pixels of the control's container; twips divided and rounded by hand.
const PlaceCase Places[] = {
    {"Text1", {0, 0, 545, 21}, {0, 0, 681, 26}},
    {"Picture1", {0, 58, 546, 308}, {0, 72, 683, 385}},
    {"Helpbar", {189, 20, 356, 20}, {236, 25, 445, 25}},
    {"PlColor(4)", {4, 84, 73, 17}, {5, 105, 92, 21}},
    {"Frame1", {548, 44, 81, 89}, {685, 55, 101, 111}},
    {"Countx(0)", {4, 30, 72, 14}, {5, 38, 90, 18}},
    {"ColBar(1)", {34, 16, 13, 86}, {43, 20, 17, 107}},
};

TEST(Window, EveryControlStandsWhereTheTableSaysOnAnyScreen) {
  for (const float twips : {15.0F, 12.0F}) {
    ScriptedDesktop desktop;
    desktop.Twips = twips;
    Form1 form(desktop);
    MainWindow window(form);
    for (const PlaceCase& place : Places) {
      const auto* widget = window.findChild<QWidget*>(place.Name);
      ASSERT_NE(widget, nullptr) << place.Name;
      EXPECT_EQ(widget->geometry(), twips == 15 ? place.At15 : place.At12) << place.Name;
    }
    EXPECT_EQ(window.findChild<QWidget*>("PlColor(0)")->parentWidget()->objectName(), "Frame3D1");
    EXPECT_FALSE(form.Picture1.ScrollsAcross()) << "no picture has been loaded";
  }
}

TEST_F(WindowTest, NoCaptionIsCutOff) {
  for (const QPushButton* button : Window.findChildren<QPushButton*>()) {
    const QFontMetrics metrics(button->font());
    const std::string name = button->objectName().toStdString();
    EXPECT_LE(metrics.horizontalAdvance(button->text()), button->width() - 8) << name;
    EXPECT_LE(metrics.height(), button->height() - 4) << name;
  }
}

TEST(Window, ATextDrawnInJustItsOwnWidthIsWhole) {
  ScriptedDesktop desktop;
  const QFont font = paint::TextFont(desktop);
  for (const char* text : {"Scandinavia", "Latin West", "The Isles"}) {
    const int width = QFontMetrics(font).horizontalAdvance(text);
    QImage images[2];
    for (const int spare : {0, 1}) {
      images[spare] = QImage(width, 16, QImage::Format_RGB32);
      images[spare].fill(Qt::white);
      QPainter painter(&images[spare]);
      painter.setFont(font);
      paint::DrawCaption(painter, {-spare, 0, width + 2 * spare, 16}, text, Qt::ElideRight);
    }
    EXPECT_EQ(images[0], images[1]) << text;
  }
}

TEST_F(WindowTest, FollowsTheForm) {
  Form.Caption = "Caf\xE9";
  Form.Move(150, 300);
  Form.LoadMpa.Caption = "a&b";
  Form.LoadMpa.BackColor = 0x00FF8000;
  Form.Quit.Visible = false;
  Form.Frame1.Left = 15;
  EXPECT_EQ(Window.windowTitle(), QStringLiteral("Caf\u00E9"));
  EXPECT_EQ(Window.pos(), QPoint(10, 20));
  EXPECT_EQ(Of<QPushButton>(Form.LoadMpa).text(), "a&&b") << "a shortcut of its own";
  EXPECT_EQ(PixelOn(Form.LoadMpa, {4, 4}), QColor(0x00, 0x80, 0xFF));
  EXPECT_FALSE(Of(Form.Quit).isVisible());
  EXPECT_EQ(Of(Form.Frame1).x(), 1);
}

TEST_F(WindowTest, ButtonsActOnTheReleaseOfAnyMouseButtonAndOnSpaceAndEnter) {
  forms::CommandButton& button = Form.AddTer;
  const auto& face = Of<QPushButton>(button);
  std::string events;
  button.MouseUp = [&](const forms::MouseEvent& event) {
    events += std::to_string(event.Button) + std::to_string(event.Shift) + " ";
  };
  button.Click = [&](const forms::PlainEvent&) { events += "click "; };
  Click(button);
  Click(button, Qt::RightButton, Qt::ShiftModifier);
  Click(button, Qt::MiddleButton, Qt::ControlModifier | Qt::AltModifier);
  EXPECT_EQ(events, "10 click 21 46 ");
  Press(Reach(button));
  EXPECT_TRUE(face.isDown());
  Move({5, 5});
  EXPECT_FALSE(face.isDown());
  Release({5, 5});
  EXPECT_EQ(events, "10 click 21 46 ") << "let go outside";
  button.SetFocus();
  Key(Qt::Key_Space);
  Key(Qt::Key_Down);
  Key(Qt::Key_Return, Qt::ShiftModifier);
  Key(Qt::Key_Enter);
  EXPECT_EQ(events, "10 click 21 46 10 click 11 click 10 click ");
}

TEST_F(WindowTest, APressOnADisabledControlReachesWhatLiesUnderIt) {
  std::string events;
  Form.PlColor(4).MouseUp = [&](const forms::MouseEvent&) { events += "button "; };
  Form.Frame3D1.MouseUp = [&](const forms::MouseEvent&) { events += "frame "; };
  Form.ColBar(0).Change = [&](const forms::PlainEvent&) { events += "bar "; };
  for (const bool enabled : {false, true}) {
    Form.PlColor(4).Enabled = enabled;
    Form.RGBFrame.Enabled = enabled;
    EXPECT_EQ(Of(Form.ColBar(0)).isEnabled(), enabled);
    ClickAt(Centre(Form.PlColor(4)));
    ClickAt(Centre(Form.ColBar(0)));
  }
  EXPECT_EQ(events, "frame button bar ");
}

TEST_F(WindowTest, ScrollBarsTellTheirValueWhenTheThumbIsLetGoAndAtEachStep) {
  forms::VScrollBar& bar = Form.ColBar(2);
  std::vector<int> values;
  bar.Change = [&](const forms::PlainEvent&) { values.push_back(bar.Value); };
  const QPoint top = Reach(bar) - QPoint(0, 24);
  Press(top);
  for (int y = 0; y <= 100; y += 10) Move(top + QPoint(0, y));
  EXPECT_TRUE(values.empty()) << "still held";
  EXPECT_EQ(QToolTip::text(), "Adjust to set Blue color: 256");
  Release(top + QPoint(0, 100));
  bar.Value = 100;
  EXPECT_EQ(Of<QScrollBar>(bar).value(), 100);
  for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Right, Qt::Key_Left}) Key(key);
  EXPECT_EQ(values, (std::vector<int>{256, 100, 99, 100, 99}));
  EXPECT_EQ(QToolTip::text(), "Adjust to set Blue color: 99");
}

TEST_F(WindowTest, MovesReachWhateverLiesUnderThePointer) {
  std::string over;
  Form.ArmyAt.Load(1);
  Form.ArmyAt(1).Move(100, 50);
  Form.ArmyAt(1).Visible = true;
  Form.Symb.Enabled = false;
  const auto listen = [&over](forms::Control& control) {
    control.MouseMove = [&](const forms::MouseEvent& event) {
      over += control.Name() + " " + std::to_string(static_cast<int>(event.X)) + " ";
    };
  };
  listen(Form);
  for (forms::Control* control : Form.Controls()) listen(*control);
  for (const QPoint at : {QPoint(700, 500), QPoint(600, 50), QPoint(560, 80), QPoint(100, 10),
                          QPoint(105, 58 + 55), QPoint(20, 58 + 7), QPoint(153, 30)}) {
    Move(at);
  }
  EXPECT_EQ(over, "Form1 10500 Frame1 780 Countx 120 Text1 1500 ArmyAt 75 Picture1 20 Symb 150 ");
}

const std::string LongPath = "C:/" + std::string(3'000'000, 'W') + "/map.bmp";

TEST_F(WindowTest, LongTextsAreShownInPart) {
  Form.Message.Caption = Form.LoadMap.Caption = Form.Frame1.Caption = LongPath;
  for (const QString& shown :
       {Of<QPushButton>(Form.LoadMap).text(), Of<QLabel>(Form.Message).text()}) {
    EXPECT_EQ(shown.size(), 500);
    EXPECT_TRUE(shown.startsWith("C:/WW") && shown.contains(QChar(0x2026)));
    EXPECT_TRUE(shown.endsWith("WW/map.bmp"));
  }
  EXPECT_EQ(Of<QGroupBox>(Form.Frame1).title().size(), 500);
  EXPECT_LT(QtDesktop().MeasureText(LongPath).Width, 500 * 20);
}

TEST_F(WindowTest, LongTextsMakeNoBoxLargerThanAScreen) {
  for (const std::string& text : {LongPath, std::string(3'000'000, '\n'), std::string(400, 'W')}) {
    QTimer::singleShot(20, [] {
      QWidget& box = *QApplication::activeModalWidget();
      EXPECT_TRUE(box.width() < 800 && box.height() < 600) << box.width() << " x " << box.height();
      box.close();
    });
    QtDesktop().MsgBox(text, forms::Buttons::Ok, "Terramark");
  }
}

TEST(WindowSize, TheWindowHoldsWhatStandsOnItUnlessTheScreenOf800By800IsSmaller) {
  // What stands on it takes 9435 x 6690 twips, the form 12645 x 8985.
  for (const auto& [twips, first, least] : {std::tuple(15.0F, QSize(800, 599), QSize(629, 446)),
                                            {10.0F, QSize(800, 800), QSize(800, 670)}}) {
    ScriptedDesktop desktop;
    desktop.Twips = twips;
    Form1 form(desktop);
    const MainWindow window(form);
    EXPECT_TRUE(window.size() == first && window.minimumSize() == least) << twips;
  }
}

}  // namespace
}  // namespace terramark::window
