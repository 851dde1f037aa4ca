#include "window/look.h"

#include <gtest/gtest.h>

#include <QLineEdit>

#include "window/windowsupport.h"

namespace terramark::window {
namespace {

struct LookTest : testing::Test, TestWindow {
  QImage Seen(const forms::Control& control) { return Of(control).grab().toImage(); }
};

int Count(const QImage& image, QRgb colour) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == colour ? 1 : 0;
  }
  return count;
}

/// How many pixels inwards from an edge have one colour.
int Thickness(const QImage& image, QPoint at, QPoint step) {
  int run = 0;
  for (QPoint next = at; image.valid(next) && image.pixel(next) == image.pixel(at); next += step) {
    ++run;
  }
  return run;
}

TEST_F(LookTest, FramesAreEvenAtEveryScale) {
  Form.ArmyAt.Load(1);
  forms::Label& marker = Form.ArmyAt(1);
  marker.Move(101, 53);
  marker.Caption = "";
  marker.BackColor = 0x00FFFFFF;
  marker.Visible = true;
  const QRect onMap = BoundsOf(marker).translated(Of(Form.Picture1).pos());
  for (const auto& [scale, thick] : {std::pair(1.0, 1), {1.25, 1}, {1.5, 2}, {1.75, 2}, {2.0, 2}}) {
    QImage image((QSizeF(Window.size()) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    Window.render(&image);
    std::vector<QRect> framed{onMap};
    for (const forms::Control* control : std::initializer_list<const forms::Control*>{
             &Form.EditText, &Form.Symb, &Form.Armypc, &Form.Helpbar, &Form.Message, &Form.Quit,
             &Form.RefMap, &Form.SetCont}) {
      framed.push_back(Of(*control).geometry());
    }
    for (const QRect& area : framed) {
      const QRect on(
          QPoint(qRound(area.left() * scale), qRound(area.top() * scale)),
          QPoint(qRound((area.right() + 1) * scale) - 1, qRound((area.bottom() + 1) * scale) - 1));
      const QPoint in = on.topLeft() + QPoint(on.width(), on.height()) / 5;
      const int runs[] = {Thickness(image, {on.left(), in.y()}, {1, 0}),
                          Thickness(image, {on.right(), in.y()}, {-1, 0}),
                          Thickness(image, {in.x(), on.top()}, {0, 1}),
                          Thickness(image, {in.x(), on.bottom()}, {0, -1})};
      for (const int& run : runs)
        EXPECT_EQ(run, thick) << scale << " at " << area.x() << ", side " << &run - runs;
    }
  }
}

TEST_F(LookTest, WordsAndFocusShowOnEveryFace) {
  struct {
    forms::Color Face;
    QRgb Ink;
  } const faces[] = {{0x00000000, 0xFFFFFFFF}, {0x00FF0000, 0xFFFFFFFF}, {0x00606060, 0xFFFFFFFF},
                     {0x000000FF, 0xFF000000}, {0x00808080, 0xFF000000}, {0x00FFFFFF, 0xFF000000}};
  for (const auto& [face, ink] : faces) {
    Form.AddTer.BackColor = face;
    for (const bool enabled : {true, false}) {
      Form.AddTer.Enabled = enabled;
      const QImage still = Seen(Form.AddTer).copy(2, 2, 147, 13);
      EXPECT_GT(Count(still, ink), 20) << face;
      if (!enabled) continue;
      Form.AddTer.SetFocus();
      const QImage focused = Seen(Form.AddTer).copy(2, 2, 147, 13);
      const QRgb other = ~ink | 0xFF000000;
      EXPECT_GT(Count(focused, ink), Count(still, ink) + 100) << face;
      EXPECT_GE(Count(focused, other), 100) << face;
      Form.Quit.SetFocus();
    }
  }
}

TEST_F(LookTest, ADisabledBoxIsGreyAndFramed) {
  Form.Symb.BackColor = 0x00FF0000;
  Form.Symb.Enabled = false;
  const QImage box = Seen(Form.Symb);
  EXPECT_EQ(box.pixelColor(2, 2), QColor(0xC0, 0xC0, 0xC0));
  EXPECT_EQ(Count(box, 0xFF000000), 2 * (box.width() + box.height()) - 4);
}

TEST(Look, TheWindowHoldsWhatStandsOnItWhereTheScreenDoes) {
  struct {
    float Twips;
    QSize First, Least;
  } const cases[] = {
      {15, {800, 599}, {629, 446}}, {12, {800, 749}, {786, 557}}, {10, {800, 800}, {800, 670}}};
  for (const auto& [twips, first, least] : cases) {  // on a screen of 800 x 800
    ScriptedDesktop desktop;
    desktop.Twips = twips;
    Form1 form(desktop);
    const MainWindow window(form);
    EXPECT_EQ(window.size(), first);
    EXPECT_EQ(window.minimumSize(), least);
  }
}

}  // namespace
}  // namespace terramark::window
