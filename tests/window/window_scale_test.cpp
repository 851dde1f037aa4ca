// That a gesture means what is seen under it. How many pixels of the device one of the editor's
// measures is the process's own: ctest runs these at each scale.
#include <gtest/gtest.h>

#include <QBackingStore>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>
#include <cmath>
#include <functional>
#include <random>

#include "shell/markers.h"
#include "window/windowsupport.h"

namespace terramark::window {
namespace {

/// A picture whose pixels tell their place by their colour, and a marker of 32 x 16 on it.
struct ScaleTest : testing::Test, TestWindow {
  static constexpr QPoint Canvas{0, 58};
  static constexpr QPoint Marker{1003, 751};
  static constexpr QPoint OnMarker{0xFF, 0xFFF};
  static constexpr QPoint Beside{0xFFF, 0xFFF};

  forms::PictureBox& Box = Form.Picture1;
  const double Scale = Window.windowHandle()->devicePixelRatio();
  QImage Screen;
  QPoint Meant;
  std::mt19937 Lots{7};

  ScaleTest() {
    auto picture = std::make_shared<forms::Raster>(*BlankPicture(2000, 1500));
    for (std::uint32_t i = 0; i < picture->Pixels.size(); ++i) {
      picture->Pixels[i] = 0xFF000000U | (i / 2000) << 12U | i % 2000;
    }
    picture->Pixels[0] = 0xFF000001U;  // black would be shown for its whole block
    Box.Picture = picture;
    const auto means = [this](const auto& event) { Meant = QPointF(event.X, event.Y).toPoint(); };
    Box.MouseDown = means;
    Box.DragDrop = means;
    Form.ArmyAt(0).Visible = Form.Continent(0).Visible = false;
    Form.ArmyAt.Load(1);
    forms::Label& marker = Form.ArmyAt(1);
    marker.BorderStyle = forms::Border::None;
    marker.BackColor = 0x00FFF0FF;
    marker.Caption = "";
    marker.Width = 32;
    marker.Height = 16;
    marker.Move(Marker.x(), Marker.y());
    marker.Visible = true;
    marker.MouseDown = [this](const forms::MouseEvent&) { Meant = OnMarker; };
    // The corner in which the zoom is told shows no picture.
    Of(Box).findChild<QLabel*>("Zoom")->setMaximumSize(0, 0);
    Window.setMinimumSize(Window.View().DesignSize());
    Look();
  }

  /// Paints what has changed and looks at the pixels of the device.
  void Look() {
    QCoreApplication::processEvents();
    QEvent update(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&Window, &update);
    Screen = dynamic_cast<QImage*>(Window.backingStore()->paintDevice())->copy();
  }
  void ShowAt(forms::Magnification zoom) {
    Box.ZoomTo(zoom, {});
    Box.ScrollIntoView(PixelBounds(Form.ArmyAt(1)));
    Look();
  }
  static QPoint Place(const QImage& screen, QPoint at) {
    const QRgb pixel = screen.pixel(at);
    return {static_cast<int>(pixel & 0xFFFU), static_cast<int>(pixel >> 12U & 0xFFFU)};
  }
  QPoint Seen(QPoint at) const { return Place(Screen, at); }

  int Any(double from, double to) {
    return std::uniform_int_distribution(static_cast<int>(std::ceil(from)),
                                         static_cast<int>(std::ceil(to)) - 1)(Lots);
  }
  /// A pixel of the device in the view, so far from its edges.
  QPoint AnyPixel(int inside = 0) {
    const QRectF view(Canvas + QPoint(inside, inside),
                      QSize(Box.ViewWidth(), Box.ViewHeight()) - 2 * QSize(inside, inside));
    return {Any(Scale * view.left() - 0.5, Scale * view.right() - 0.5),
            Any(Scale * view.top() - 0.49, Scale * view.bottom() - 0.49)};
  }

  void Send(QEvent::Type type, QPoint at, Qt::MouseButtons buttons) {
    const QPointF place = QPointF(at) / Scale;
    const bool move = type == QEvent::MouseMove;
    QMouseEvent event(type, place, place, Window.geometry().topLeft() + place,
                      move ? Qt::NoButton : Qt::LeftButton, buttons, {});
    QCoreApplication::sendEvent(Window.windowHandle(), &event);
  }
  void PressAt(QPoint at) { Send(QEvent::MouseButtonPress, at, Qt::LeftButton); }
  void MoveTo(QPoint at) { Send(QEvent::MouseMove, at, Qt::LeftButton); }
  void ReleaseAt(QPoint at) { Send(QEvent::MouseButtonRelease, at, {}); }
};

TEST_F(ScaleTest, APressMeansThePixelThatIsSeen) {
  for (const forms::Magnification zoom : forms::ZoomSteps) {
    ShowAt(zoom);
    for (int i = 0; i < 8; ++i) {
      Of(Box).update(QRect(Any(0, 400), Any(0, 250), Any(1, 99), Any(1, 99)));
      Form.ArmyAt(1).Move(Marker.x(), static_cast<float>(Marker.y() + i % 2));
      Look();
    }
    int off = 0;
    for (int i = 0; i < 1000; ++i) {
      const QPoint at = AnyPixel();
      PressAt(at);
      ReleaseAt(at);
      const bool beside = Meant != OnMarker && (Meant.x() >= 2000 || Meant.y() >= 1500);
      off += Seen(at) != (beside ? Beside : Meant);
    }
    EXPECT_EQ(off, 0) << zoom.Screen << " : " << zoom.Picture;
  }
}

TEST_F(ScaleTest, TheWheelZoomsAboutThePixelThatIsSeen) {
  Form.ArmyAt(1).Visible = false;
  for (std::size_t i = 1; i + 1 < std::size(forms::ZoomSteps); ++i) {
    if (forms::ZoomSteps[i].Picture > 2) continue;  // the next step shows all of it
    int off = 0;
    for (int n = 0; n < 8; ++n) {
      ShowAt(forms::ZoomSteps[i]);
      // Where no edge of the picture holds it back.
      Box.ScrollTo((Box.ZoomedWidth() - Box.ViewWidth()) / 2,
                   (Box.ZoomedHeight() - Box.ViewHeight()) / 2);
      Look();
      const QPoint at = AnyPixel();
      for (const int turn : {120, -120}) {
        const QPoint seen = Seen(at);
        const QPointF place = QPointF(at) / Scale;
        QWheelEvent event(place, Window.geometry().topLeft() + place, {}, {0, turn}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(Window.windowHandle(), &event);
        Look();
        const QPoint by = Seen(at) - seen;
        const int half = Box.Zoom.Get().Picture / 2;
        off += std::max(std::abs(by.x()), std::abs(by.y())) > half;
      }
    }
    EXPECT_EQ(off, 0) << forms::ZoomSteps[i].Screen;
  }
}

TEST_F(ScaleTest, AMarkerIsTakenCarriedAndDroppedByThePixelThatIsSeen) {
  forms::Label& marker = Form.ArmyAt(1);
  marker.MouseDown = [&](const forms::MouseEvent&) { marker.Drag(); };
  for (const forms::Magnification zoom : forms::ZoomSteps) {
    const QSize covers = QSize(32, 16) * zoom.Picture;
    const QRect atHome(Marker, covers);
    marker.Visible = false;
    ShowAt(zoom);
    const QImage bare = Screen;
    marker.Visible = true;
    int off = 0;
    for (int i = 0; i < 3; ++i) {
      const auto any = [&](int inside, bool onMarker) {
        QPoint at = AnyPixel(inside);
        const auto fits = [&] {
          const QPoint place = Place(bare, at);
          return place != Beside && atHome.contains(place) == onMarker;
        };
        for (int n = 0; n < 99999 && !fits(); ++n) at = AnyPixel(inside);
        return at;
      };
      const QPoint from = any(0, true);
      const QPoint to = any(30, false);
      PressAt(from);
      MoveTo(to);
      Look();
      const QRect air(Place(bare, to) - Place(bare, from) + Marker, covers);
      for (int n = 0; n < 1000; ++n) {
        const QPoint at = AnyPixel();
        const QPoint place = Place(bare, at);
        if (place == Beside) continue;
        const bool covered = air.contains(place) || atHome.contains(place);
        off += covered != (bare.pixel(at) != Screen.pixel(at));
      }
      ReleaseAt(to);
      off += Meant != Place(bare, to);
    }
    EXPECT_EQ(off, 0) << zoom.Screen << " : " << zoom.Picture;
  }
}

TEST_F(ScaleTest, ASmallWindowScrollsToWhatHasTheKeyboardAndNeverUnderAPress) {
  auto& area = *dynamic_cast<QScrollArea*>(Window.centralWidget());
  EXPECT_FALSE(area.verticalScrollBar()->isVisible() || area.horizontalScrollBar()->isVisible());
  Window.setMinimumSize(0, 0);
  Window.resize(253, 201);
  Look();
  const QRect view = area.viewport()->rect();
  const auto place = [&](const forms::Control& control) {
    return QRect(Of(control).mapTo(&Window, QPoint()), Of(control).size());
  };
  for (int i = 0; i < 30; ++i) {
    Key(Qt::Key_Tab);
    const forms::Control& now = *Form.ActiveControl();
    // What is larger than the window begins where the window does.
    const QRect seen(place(now).topLeft(), place(now).size().boundedTo(view.size()));
    EXPECT_TRUE(view.contains(seen)) << now.Name();
  }
  // On the map, to the marker that its keys act on.
  Box.SetFocus();
  Box.CursorItem = &Form.ArmyAt(1);
  for (const QPoint by : {QPoint(0, 0), QPoint(Box.ViewWidth() - 32, Box.ViewHeight() - 16)}) {
    Box.ScrollTo(Marker.x() - by.x(), Marker.y() - by.y());
    Key(Qt::Key_Right);
    EXPECT_TRUE(view.contains(QRect(place(Box).topLeft() + by, QSize(32, 16))));
  }
  const auto wheelOver = [&](const forms::Control& control) {
    const QPointF at = place(control).center();
    QWheelEvent event(at, at, {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(Window.windowHandle(), &event);
  };
  for (int n = 0; n < 2; ++n) {
    n == 0 ? Form.Quit.SetFocus() : Form.SetCont.SetFocus();
    const QPoint home = place(Form.Quit).topLeft();
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Right, Qt::Key_PageUp,
                              Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End}) {
      Key(key);
    }
    EXPECT_EQ(place(Form.Quit).topLeft(), home) << "the keys are the form's";
    Look();
    const QRectF map = QRect(place(Box).topLeft(), QSize(Box.ViewWidth(), Box.ViewHeight())) & view;
    int off = 0;
    for (int i = 0; i < 500; ++i) {
      const QPoint at(Any(Scale * map.left(), Scale * map.right() - 1),
                      Any(Scale * map.top(), Scale * map.bottom() - 1));
      PressAt(at);
      ReleaseAt(at);
      off += Seen(at) != Meant;
    }
    EXPECT_EQ(off, 0);
    const QImage scrolled = Screen;
    Window.update();
    Window.View().update();
    for (QWidget* part : Window.View().findChildren<QWidget*>()) part->update();
    Look();
    EXPECT_TRUE(Screen == scrolled) << "nothing stays where it was";
  }
  // The picture's corner lies at each part of a pixel beyond the window's edge.
  Box.ScrollTo(0, 0);
  for (int out = 0; out < 8; ++out) {
    area.horizontalScrollBar()->setValue(out);
    area.verticalScrollBar()->setValue(place(Box).top() + area.verticalScrollBar()->value() + out);
    Look();
  }
  Form.Quit.SetFocus();
  const QPoint home = place(Form.Quit).topLeft();
  wheelOver(Box);
  EXPECT_EQ(place(Form.Quit).topLeft(), home) << "the map's own wheel";
  wheelOver(Form.Quit);
  EXPECT_LT(place(Form.Quit).top(), home.y());

  // A marker is let go beside the map's visible part.
  Form.EditText.SetFocus();
  forms::Label& marker = Form.ArmyAt(1);
  marker.MouseDown = [&](const forms::MouseEvent&) { marker.Drag(); };
  Box.ScrollTo(Marker.x(), Marker.y());
  bool dropped = false;
  Box.DragDrop = [&](const auto&) { dropped = true; };
  for (const bool inside : {false, true}) {
    Press(place(Box).topLeft() + QPoint(5, 5));
    Move({100, 100});
    Release({inside ? view.right() - 4 : view.right() + 4, 100});
    EXPECT_EQ(dropped, inside);
  }
  // A button in half is scrolled to when it has been pressed, and acts.
  int clicks = 0;
  Form.LoadMpa.Click = [&](const auto&) { ++clicks; };
  QScrollBar& bar = *area.verticalScrollBar();
  bar.setValue(bar.value() + place(Form.LoadMpa).center().y() - view.bottom());
  const QRect half = place(Form.LoadMpa);
  const QPoint at(half.center().x(), view.bottom() - 2);
  Press(at);
  EXPECT_EQ(place(Form.LoadMpa), half);
  Release(at);
  EXPECT_EQ(clicks, 1);
  EXPECT_TRUE(view.contains(place(Form.LoadMpa)));
}

TEST_F(ScaleTest, NothingStaysWhereAMarkerOrARingHasBeen) {
  forms::Label& marker = Form.ArmyAt(1);
  marker.MouseDown = [&](const forms::MouseEvent&) { marker.Drag(); };
  const auto at = [&](int x, int y) {
    const forms::PixelPoint onPicture{Marker.x() + x, Marker.y() + y};
    const forms::PixelPoint place = MapToBox(Box, onPicture);
    return (Scale * (QPointF(place.X, place.Y) + Canvas)).toPoint();
  };
  // Each changes what is seen.
  const std::function<void()> steps[] = {
      [&] { marker.Move(Marker.x() + 20, Marker.y() + 30); },
      [&] { marker.Width = marker.Width - 9; },
      [&] { marker.Height = marker.Height - 3; },
      [&] { marker.Visible = false; },
      [&] { marker.Visible = true; },
      [&] {
        Form.ArmyAt.Load(2);
        Form.ArmyAt(2).Move(Marker.x() + 60, Marker.y());
        Form.ArmyAt(2).Visible = true;
      },
      [&] { Box.SetFocus(); },
      [&] { Box.CursorItem = &Form.ArmyAt(2); },
      [&] { Box.CursorItem = &marker; },
      [&] { marker.Move(Marker.x(), Marker.y()); },
      [&] { SetCorner(Form, 1, 3); },
      [&] {
        Form.Pointer.BeginKeyDrag(marker);
        Form.Pointer.MoveKeyDrag(40, 20);
      },
      [&] { Form.Pointer.MoveKeyDrag(-30, -15); },
      [&] { Form.Pointer.CancelKeyDrag(); },
      [&] {
        PressAt(at(2, 2));
        MoveTo(at(70, 2));
      },
      [&] { MoveTo(at(20, 20)); },
      [&] {
        Key(Qt::Key_Escape);
        ReleaseAt(at(20, 20));
      },
      [&] { Box.CursorItem = nullptr; },
      [&] { Form.ArmyAt.Unload(2); },
  };
  for (const forms::Magnification zoom :
       {forms::ActualSize, forms::Magnification{3, 1}, forms::Magnification{1, 4}}) {
    SetCorner(Form, 1, 0);
    Form.Quit.SetFocus();
    ShowAt(zoom);
    Box.ScrollTo(ToScreen(zoom, Marker.x()) - 150, ToScreen(zoom, Marker.y()) - 100);
    Look();
    int n = 0;
    for (const auto& step : steps) {
      const QImage before = Screen;
      step();
      Look();
      const QImage shown = Screen;
      EXPECT_TRUE(shown != before) << "step " << n;
      Of(Box).update();
      Look();
      EXPECT_TRUE(shown == Screen) << "step " << n;
      ++n;
    }
  }
}

}  // namespace
}  // namespace terramark::window
