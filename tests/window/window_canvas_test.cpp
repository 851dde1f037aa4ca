#include <gtest/gtest.h>

#include <QLabel>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <vector>

#include "paint/mapimage.h"
#include "window/windowsupport.h"

namespace terramark::window {
namespace {

constexpr QPoint Canvas(0, 58);  // where Picture1 stands in the window
const QColor Blue(0x00, 0x00, 0xFF);
const QColor White(0xFF, 0xFF, 0xFF);
const QColor InTheAir(0x40, 0x40, 0xFF);  // a blue marker over white

/// A window with one blue marker of 32 x 16 at 100, 50 that a press takes up.
struct MarkerTest : testing::Test, TestWindow {
  std::vector<QPoint> Drops;

  MarkerTest() {
    Form.ArmyAt.Load(1);
    forms::Label& marker = Marker();
    marker.Caption = "";
    marker.BackColor = 0x00FF0000;
    marker.Width = 32;
    marker.Height = 16;
    marker.Move(100, 50);
    marker.Visible = true;
    marker.MouseDown = [&marker](const forms::MouseEvent&) { marker.Drag(); };
    Form.Picture1.DragDrop = [this](const forms::DropEvent& event) {
      Drops.emplace_back(static_cast<int>(event.X), static_cast<int>(event.Y));
    };
  }

  forms::Label& Marker() { return Form.ArmyAt(1); }
  QColor Pixel(int x, int y) { return PixelOn(Form.Picture1, {x, y}); }
};

TEST_F(MarkerTest, DrawsMarkersInTheirOrderAndTakesThemAway) {
  EXPECT_EQ(Pixel(110, 58), Blue);
  EXPECT_EQ(Pixel(99, 58), White);
  Form.ArmyAt.Load(2);
  Form.ArmyAt(2).BackColor = 0x000000FF;
  Form.ArmyAt(2).Move(105, 50);
  Form.ArmyAt(2).Visible = true;
  EXPECT_EQ(Pixel(112, 62), QColor(Qt::red));
  Marker().ZOrder(forms::StackEnd::Front);
  EXPECT_EQ(Pixel(110, 58), Blue);
  Form.ArmyAt.Unload(1);
  Form.ArmyAt.Unload(2);
  EXPECT_EQ(Pixel(110, 58), White);
}

TEST_F(MarkerTest, TheMapAsAPictureHasThePixelsOfTheCanvas) {
  Form.Picture1.Picture = BlankPicture(546, 308, 0xFF80A0C0);
  Marker().Caption = "+12";
  Form.ArmyAt.Load(2);  // and one that is not shown
  Form.ArmyAt(2).Move(200, 100);
  const auto map = [&](int side) {
    return QImage::fromData(QByteArray::fromStdString(*paint::MapAsPng(Form.Picture1, side)),
                            "PNG");
  };
  EXPECT_EQ(map(1024), Of(Form.Picture1).grab().toImage().convertToFormat(map(1024).format()));
  EXPECT_EQ(map(256).size(), QSize(256, 144));
  EXPECT_EQ(map(256).pixelColor(60, 28), Blue);
  Form.Picture1.Picture = BlankPicture(0, 0);
  EXPECT_FALSE(paint::MapAsPng(Form.Picture1, 64));
}

/// Counts what a widget is asked to paint.
struct PaintWatch : QObject {
  QRegion Painted;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) Painted += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
  bool All(const QRect& area) const { return (QRegion(area) - Painted).isEmpty(); }
};

TEST_F(MarkerTest, PaintsOnlyWhereAMarkerWasAndIs) {
  QTest::qWait(20);
  PaintWatch watch;
  Of(Form.Picture1).installEventFilter(&watch);
  Marker().Move(300, 200);
  QTest::qWait(20);
  EXPECT_TRUE(watch.All({100, 50, 32, 16}) && watch.All({300, 200, 32, 16}));
  EXPECT_FALSE(watch.Painted.intersects(QRect(200, 100, 50, 50)));
  watch.Painted = {};
  Form.Picture1.Refresh();
  QTest::qWait(20);
  EXPECT_TRUE(watch.All({0, 0, 546, 308}));
  // Back from the air it has its ring again, and a pixel around it for a scaled screen.
  Form.Picture1.SetFocus();
  QTest::qWait(20);
  watch.Painted = {};
  Form.Picture1.CursorItem = &Marker();
  QTest::qWait(20);
  EXPECT_TRUE(watch.All({296, 196, 40, 24}));
  EXPECT_FALSE(watch.Painted.intersects(QRect(200, 100, 50, 50)));
  Form.Pointer.BeginKeyDrag(Marker());
  Form.Pointer.MoveKeyDrag(0, -99);
  QTest::qWait(20);
  watch.Painted = {};
  Form.Pointer.CancelKeyDrag();
  QTest::qWait(20);
  EXPECT_TRUE(watch.All({296, 196, 40, 24}));
}

TEST_F(MarkerTest, AMarkerFollowsThePointerOutOfTheBoxAndBack) {
  Press(Canvas + QPoint(105, 55));
  Move(Canvas + QPoint(205, 155));
  EXPECT_EQ(Pixel(210, 158), InTheAir);
  EXPECT_EQ(Pixel(110, 58), Blue) << "it stays at its place until it is dropped";
  Move({-40, -40});
  EXPECT_EQ(Pixel(210, 158), White);
  Move(Canvas + QPoint(25, 30));
  Release(Canvas + QPoint(25, 30));
  EXPECT_EQ(Drops, std::vector<QPoint>{QPoint(25, 30)});
}

TEST_F(MarkerTest, AMarkerLetGoWhereTheWindowDoesNotShowTheMapStays) {
  const auto drop = [&](QPoint at) {
    Press(Canvas + QPoint(105, 55));
    Move(Canvas + at);
    Release(Canvas + at);
    return Drops.size();
  };
  QWidget over(nullptr, Qt::ToolTip);
  over.setGeometry(QRect(Window.mapToGlobal(Canvas + QPoint(300, 100)), QSize(80, 80)));
  over.show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&over));
  EXPECT_EQ(drop({340, 140}), 0U) << "another window lies there";
  over.hide();
  Window.setMinimumSize(320, 400);  // as on a small screen
  Window.resize(320, 400);
  EXPECT_EQ(drop({340, 140}), 0U) << "outside the window";
  EXPECT_EQ(drop({300, 140}), 1U);
}

TEST_F(MarkerTest, EscapeAndALostFocusEndADragWithNothingMoved) {
  for (const bool escape : {true, false}) {
    Press(Canvas + QPoint(105, 55));
    Move(Canvas + QPoint(205, 155));
    if (escape) {
      Key(Qt::Key_Escape);
    } else {
      QWidget other;
      other.show();
      other.activateWindow();
      EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    }
    EXPECT_FALSE(Form.Pointer.CurrentDrag().has_value());
    EXPECT_EQ(Pixel(210, 158), White);
    Release(Canvas + QPoint(205, 155));
    EXPECT_TRUE(Drops.empty());
  }
}

TEST_F(MarkerTest, ALargerPictureIsReachedByItsScrollBars) {
  forms::PictureBox& box = Form.Picture1;
  const auto bars = Of(box).findChildren<QScrollBar*>();
  ASSERT_EQ(bars.size(), 2);
  EXPECT_FALSE(bars[0]->isVisible() || bars[1]->isVisible());
  auto picture = std::make_shared<forms::Raster>(*BlankPicture(800, 600));
  picture->Pixels[picture->IndexOf(600, 10)] = 0xFF0000FF;
  box.Picture = picture;
  EXPECT_TRUE(bars[0]->isVisible() && bars[1]->isVisible());
  EXPECT_EQ(bars[0]->geometry(), QRect(0, 292, 530, 16));
  bars[0]->setValue(90);
  EXPECT_EQ(box.ScrollLeft, 90);
  EXPECT_EQ(Pixel(510, 10), Blue);
  EXPECT_EQ(Pixel(20, 58), Blue) << "the marker goes with the picture";
  box.ScrollTo(0, 80);
  EXPECT_EQ(bars[0]->value(), 0);
  EXPECT_EQ(bars[1]->value(), 80);
  EXPECT_EQ(Pixel(538, 300), QColor(0xC0, 0xC0, 0xC0)) << "the corner between the bars";

  // A marker in that corner changes nothing of the map beside it, flooded or not.
  box.FillToBorder(std::vector<forms::PixelPoint>{{0, 0}}, 0);
  box.ScrollTo(90, 80);
  Marker().Move(90 + 540, 80 + 302);
  QTest::qWait(20);
  PaintWatch watch;
  Of(box).installEventFilter(&watch);
  Marker().ForeColor = 0x00FF00FF;
  EXPECT_TRUE(QTest::qWaitFor([&] { return !watch.Painted.isEmpty(); }));
  EXPECT_FALSE(watch.Painted.intersects(QRect(0, 0, 530, 292)));
  Marker().Move(100, 50);

  box.ScrollTo(0, 0);
  Press(Canvas + QPoint(105, 55));
  Move(Canvas + QPoint(520, 100));
  EXPECT_TRUE(QTest::qWaitFor([&] { return box.ScrollLeft > 30; }));
  Key(Qt::Key_Escape);
  Release(Canvas + QPoint(520, 100));
  box.Picture = BlankPicture(0, 0);
  EXPECT_FALSE(bars[0]->isVisible() || bars[1]->isVisible());
}

TEST_F(MarkerTest, EachPixelOfAZoomedMapIsTheNearestOfThePictureOrBlack) {
  forms::PictureBox& box = Form.Picture1;
  auto picture = std::make_shared<forms::Raster>(*BlankPicture(1203, 801));
  for (std::size_t i = 0; i < picture->Pixels.size(); ++i) {
    const auto colour = static_cast<std::uint32_t>(i * 2654435761U >> 8U);
    // Less black below, where the smallest steps show more than black.
    const bool edge = i % 1203 == 1202 || i / 1203 == 800;
    const bool black = edge || (i < 1203 * 500 ? colour % 10 < 3 : colour % 997 == 0);
    picture->Pixels[i] = 0xFF000000U | (black ? 0 : colour | 1U);
  }
  box.Picture = picture;
  box.FillToBorder(std::vector<forms::PixelPoint>{{1, 0}, {600, 400}, {601, 400}}, 0);
  const forms::Raster image = box.Image();
  EXPECT_GT(std::ranges::count(image.Pixels, forms::PixelOf(box.FillColor)), 1203 * 801 / 2);
  Marker().BorderStyle = forms::Border::None;
  Form.ArmyAt(0).Visible = Form.Continent(0).Visible = false;
  for (const forms::Magnification zoom : forms::ZoomSteps) {
    box.ZoomTo(zoom, {9, 9});
    box.ScrollIntoView(PixelBounds(Marker()));
    const QImage seen = Of(box).grab(QRect(0, 0, box.ViewWidth(), box.ViewHeight())).toImage();
    const forms::PixelRect marker = MapToBox(box, DisplayBounds(Marker()));
    EXPECT_EQ(marker.Width, 32 * zoom.Screen);
    int wrong = 0;
    const auto hasBlack = [&](int left, int top) {
      // The last pixel has the rest of the picture, too.
      const auto end = [&](int from, int size) {
        return from + zoom.Picture + zoom.Picture / 2 < size ? from + zoom.Picture : size;
      };
      for (int y = top; y < end(top, 801); ++y) {
        for (int x = left; x < end(left, 1203); ++x) {
          if (picture->Pixels[picture->IndexOf(x, y)] == 0xFF000000U) return true;
        }
      }
      return false;
    };
    // But for the corner in which the zoom is told.
    for (int y = 0; y < seen.height() - 40; ++y) {
      for (int x = 0; x < seen.width() - 60; ++x) {
        // The middle of the pixel on the screen, in pixels of the picture.
        const auto nearest = [&](int at) {
          return static_cast<int>((at + 0.5) * zoom.Picture / zoom.Screen);
        };
        const int left = nearest(x + box.ScrollLeft);
        const int top = nearest(y + box.ScrollTop);
        const bool blank = left >= 1203 || top >= 801;
        QRgb pixel = blank ? White.rgb() : image.Pixels[image.IndexOf(left, top)];
        if (!blank && hasBlack(left - zoom.Picture / 2, top - zoom.Picture / 2)) {
          pixel = 0xFF000000U;
        }
        wrong += seen.pixel(x, y) != (marker.Contains({x, y}) ? Blue.rgb() : pixel);
      }
    }
    EXPECT_EQ(wrong, 0) << zoom.Screen << " : " << zoom.Picture;
  }
}

TEST_F(MarkerTest, TheWheelScrollsBothWaysAndZoomsAboutThePointer) {
  forms::PictureBox& box = Form.Picture1;
  box.Picture = BlankPicture(2000, 1500);
  auto& label = *Of(box).findChild<QLabel*>("Zoom");
  const auto turn = [&](int angle, Qt::KeyboardModifiers keys) {
    QWheelEvent event({200, 100}, Of(box).mapToGlobal(QPointF(200, 100)), {}, {0, angle},
                      Qt::NoButton, keys, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&Of(box), &event);
  };
  turn(-240, {});
  for (int i = 0; i < 120; ++i) turn(-2, Qt::ShiftModifier);
  EXPECT_EQ(box.ScrollTop, 96);
  EXPECT_EQ(box.ScrollLeft, 96);
  EXPECT_FALSE(label.isVisible());
  const forms::PixelPoint about = MapToPicture(box, {200, 100});
  for (int i = 0; i < 4; ++i) turn(60, Qt::ControlModifier);
  EXPECT_EQ(label.text(), "300 %");
  EXPECT_TRUE(label.isVisible());
  EXPECT_EQ(MapToPicture(box, {200, 100}).X, about.X);
  EXPECT_EQ(MapToPicture(box, {200, 100}).Y, about.Y);
  turn(-240, Qt::ControlModifier);
  EXPECT_FALSE(label.isVisible());
}

TEST_F(MarkerTest, AHandIsOverAMarkerAndHoldsTheOneInTheAir) {
  const auto shape = [&] { return Of(Form.Picture1).cursor().shape(); };
  Move(Canvas + QPoint(105, 55));
  EXPECT_EQ(shape(), Qt::OpenHandCursor);
  Form.Picture1.ZoomTo({8, 1}, {});
  QTest::qWait(20);
  EXPECT_EQ(shape(), Qt::ArrowCursor) << "the marker has gone from under it";
  Form.Picture1.ZoomTo(forms::ActualSize, {});
  Press(Canvas + QPoint(105, 55));
  EXPECT_EQ(shape(), Qt::ClosedHandCursor);
  Move(Canvas + QPoint(300, -200));
  EXPECT_EQ(shape(), Qt::ClosedHandCursor);
  EXPECT_EQ(Pixel(310, 5), InTheAir) << "out of the box it waits at the edge";
  Key(Qt::Key_Escape);
  Release(Canvas + QPoint(300, 200));
  Move(Canvas + QPoint(300, 200));
  EXPECT_EQ(shape(), Qt::ArrowCursor);
  Form.Pointer.BeginKeyDrag(Marker());
  Form.Pointer.MoveKeyDrag(-110, 0);
  EXPECT_EQ(Pixel(15, 55), InTheAir);
  EXPECT_EQ(Pixel(24, 55), White) << "held by the keys it is seen where it is";
}

}  // namespace
}  // namespace terramark::window
