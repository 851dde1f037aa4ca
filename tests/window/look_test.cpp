#include <gtest/gtest.h>

#include <QPushButton>

#include "window/windowsupport.h"

namespace terramark::window {
namespace {

struct LookTest : testing::Test, TestWindow {};

/// How many pixels inwards from an edge have one colour.
int Thickness(const QImage& image, QPoint edge, QPoint step) {
  QPoint at = edge;
  while (image.valid(at) && image.pixel(at) == image.pixel(edge)) at += step;
  return (at - edge).manhattanLength();
}

TEST_F(LookTest, FramesAreEvenAtEveryScale) {
  Form.ArmyAt.Load(1);
  forms::Label& marker = Form.ArmyAt(1);
  marker.Move(101, 53);
  marker.Caption = "";
  marker.BackColor = 0x00FFFFFF;
  marker.Visible = true;
  std::vector<QRect> framed{BoundsOf(marker).translated(Of(Form.Picture1).pos())};
  for (const char* name : {"EditText", "Symb", "Armypc", "Message", "Quit", "RefMap", "SetCont"}) {
    framed.push_back(Window.findChild<QWidget*>(name)->geometry());
  }
  for (const auto& [scale, thick] : {std::pair(1.25, 1), {1.5, 2}, {1.75, 2}, {2.0, 2}}) {
    QImage image((QSizeF(Window.size()) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    Window.render(&image);
    for (const QRect& area : framed) {
      const QPoint first(qRound(area.x() * scale), qRound(area.y() * scale));
      const QPoint last(qRound((area.x() + area.width()) * scale) - 1,
                        qRound((area.y() + area.height()) * scale) - 1);
      const QPoint on = first + (last - first) / 5;
      EXPECT_EQ(Thickness(image, {first.x(), on.y()}, {1, 0}), thick) << scale << ": " << area.x();
      EXPECT_EQ(Thickness(image, {last.x(), on.y()}, {-1, 0}), thick) << scale << ": " << area.x();
      EXPECT_EQ(Thickness(image, {on.x(), first.y()}, {0, 1}), thick) << scale << ": " << area.x();
      EXPECT_EQ(Thickness(image, {on.x(), last.y()}, {0, -1}), thick) << scale << ": " << area.x();
    }
  }
}

TEST(Palette, TakesNoColourFromTheDesktopAndItsLinksStandOutOnWhite) {
  QWidget window;
  QPushButton button(&window);
  // What a dark desktop sets for a kind of widget.
  QApplication::setPalette(QPalette(Qt::white, Qt::black), "QPushButton");
  window.show();
  const QPalette palette = button.palette();
  EXPECT_EQ(palette, QApplication::palette());
  EXPECT_EQ(palette.color(QPalette::ButtonText), Qt::black);
  for (const auto role : {QPalette::Link, QPalette::LinkVisited}) {
    // The luminance below which the contrast with white is 7 : 1, as a grey.
    EXPECT_LT(qGray(palette.color(role).rgb()), 0x59) << role;
  }
  QApplication::setPalette(QApplication::palette());
}

TEST_F(LookTest, WordsAndFocusShowOnEveryFaceAndADisabledBoxIsGrey) {
  const auto count = [this](QRgb ink) {
    const QImage inside = Of(Form.AddTer).grab().toImage().copy(2, 2, 149, 13);
    const auto* pixels = reinterpret_cast<const QRgb*>(inside.constBits());
    return std::count(pixels, pixels + 149 * 13, ink);
  };
  for (const auto& [face, white] : {std::pair(0x000000U, true),
                                    {0xFF0000U, true},
                                    {0x606060U, true},
                                    {0x0000FFU, false},
                                    {0x808080U, false}}) {
    const QRgb ink = white ? 0xFFFFFFFF : 0xFF000000;
    Form.AddTer.BackColor = face;
    Form.Quit.SetFocus();
    Form.AddTer.Enabled = false;
    EXPECT_EQ(count(ink), 0) << face << ", disabled";
    const QImage dull = Of(Form.AddTer).grab().toImage().copy(2, 2, 149, 13);
    int darkest = 255;
    for (int x = 0; x < 149; ++x) darkest = std::min(darkest, qGray(dull.pixel(x, 6)));
    EXPECT_GT(qGray(dull.pixel(1, 1)) - darkest, 60) << face << ", disabled";
    Form.AddTer.Enabled = true;
    const auto words = count(ink);
    EXPECT_GT(words, 20) << face;
    Form.AddTer.SetFocus();
    EXPECT_GT(count(ink), words + 100) << face;
  }
  // The ring hides nothing of a caption that is cut.
  Form.LoadMpa.Caption = std::string(99, 'W');
  QImage looks[2];
  for (const bool focused : {false, true}) {
    focused ? Form.LoadMpa.SetFocus() : Form.Quit.SetFocus();
    looks[focused ? 1 : 0] = Of(Form.LoadMpa).grab().toImage();
  }
  const QRect inRing = looks[0].rect().adjusted(3, 3, -3, -3);
  EXPECT_EQ(looks[0].copy(inRing), looks[1].copy(inRing));
  for (int y = 2; y < looks[0].height() - 2; ++y) {
    for (const int x : {2, looks[0].width() - 3}) {
      EXPECT_EQ(looks[0].pixel(x, y), looks[0].pixel(2, 2)) << "no letter where the ring is";
    }
  }
  for (const bool focused : {false, true}) {
    focused ? Form.Picture1.SetFocus() : Form.Quit.SetFocus();
    for (const QPoint edge : {QPoint(0, 100), {100, 0}, {545, 100}, {100, 307}}) {
      EXPECT_EQ(PixelOn(Form.Picture1, edge), QColor(focused ? Qt::black : Qt::white));
    }
  }
  Form.Symb.Enabled = false;
  EXPECT_EQ(PixelOn(Form.Symb, {2, 2}), QColor(0xC0, 0xC0, 0xC0));
}

}  // namespace
}  // namespace terramark::window
