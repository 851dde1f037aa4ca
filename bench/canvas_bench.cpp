// What the map costs on the screen at each zoom: a move of a dragged marker, a notch of the wheel
// that scrolls and one that zooms, each with its repaint, and in multiples of painting an image of
// the box's size. A large picture, and 192 markers of which as many are seen as the view has room
// for.
#include <QApplication>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cstdio>

#include "commands/addmarkers.h"
#include "forms/geometry.h"
#include "largemap.h"
#include "processes.h"
#include "samples.h"
#include "window/appstyle.h"

namespace terramark {
namespace {

constexpr int Moves = 400;
constexpr int Steps = 100;

void AddRegions(Form1& form) {
  for (std::int16_t r = 1; r <= CountLimit; ++r) {
    AddCont_MouseUp(form);
    form.Continent(r).Move(static_cast<float>(5 + 44 * (r % 12)),
                           static_cast<float>(10 + 33 * (r / 12)));
  }
}

/// CPU seconds that it takes each time.
template <typename Act>
double Took(int times, Act act) {
  Samples samples;
  for (int round = 0; round < 5; ++round) {
    const double begin = CpuSeconds();
    for (int i = 0; i < times; ++i) act(i);
    samples.Add((CpuSeconds() - begin) / times);
  }
  return samples.Median();
}

/// Shows an image and nothing else.
class Plain : public QWidget {
 public:
  explicit Plain(const QSize& size) : image_(size, QImage::Format_RGB32) {
    image_.fill(Qt::white);
    resize(size);
    setAttribute(Qt::WA_OpaquePaintEvent);
  }

  /// CPU seconds of painting all of it.
  double Paint() {
    return Took(Steps, [this](int) {
      update();
      Repaint(*this);
    });
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override { QPainter(this).drawImage(0, 0, image_); }

 private:
  QImage image_;
};

class CanvasBench {
 public:
  CanvasBench(Form1& form, window::MainWindow& window) : form_(form), window_(window) {}

  /// CPU seconds of a move of a marker that is carried to and fro over the view.
  double Move() {
    form_.Picture1.ScrollTo(0, 0);
    // Near the corner that stays where the picture is shrunk, and in view where it is magnified.
    const forms::PixelRect marker = MapToBox(form_.Picture1, DisplayBounds(form_.ArmyAt(1)));
    const forms::PixelPoint held =
        box_.TopLeft() +
        forms::PixelPoint{marker.Left + 1,
                          std::min(marker.Top + marker.Height, form_.Picture1.ViewHeight()) - 1};
    form_.Pointer.Press(held.X, held.Y, forms::LeftButton, 0);
    if (!form_.Pointer.CurrentDrag()) qFatal("no marker is in the air");
    const auto move = [&](int i) {
      form_.Pointer.Move(box_.Left + 60 + 7 * (i % 50), box_.Top + 40 + 3 * (i % 50), 0);
      Repaint(window_);
    };
    const double took = Took(Moves, move);
    form_.Pointer.CancelDrag();
    form_.Pointer.Release(0, 0, forms::LeftButton, 0);
    return took;
  }

  /// CPU seconds of a notch of the wheel with these keys, so many down and then as many up.
  double Wheel(Qt::KeyboardModifiers keys, int notches) {
    QWidget& canvas = *window_.View().WidgetOf(form_.Picture1);
    return Took(Steps, [&](int i) {
      const QPoint turn(0, i % (2 * notches) < notches ? -120 : 120);
      QWheelEvent event({100, 100}, canvas.mapToGlobal(QPointF(100, 100)), {}, turn, Qt::NoButton,
                        keys, Qt::NoScrollPhase, false);
      QCoreApplication::sendEvent(&canvas, &event);
      Repaint(window_);
    });
  }

 private:
  Form1& form_;
  window::MainWindow& window_;
  const forms::PixelRect box_ = PixelBounds(form_.Picture1);
};

void Run(int argc, char** argv) {
  QApplication application(argc, argv);
  window::InstallStyle(application);
  ShownEditor editor;
  const LargeBitmap bitmap;
  MakeMap(editor.Form, bitmap.Path);
  AddRegions(editor.Form);
  const forms::PixelRect box = PixelBounds(editor.Form.Picture1);
  Plain plain({box.Width, box.Height});
  ShowNow(plain);
  CanvasBench bench(editor.Form, editor.Window);
  for (const forms::Magnification zoom : forms::ZoomSteps) {
    editor.Form.Picture1.ZoomTo(zoom, {});
    const double move = bench.Move();
    const double wheel = bench.Wheel(Qt::NoModifier, 3);
    const double step = bench.Wheel(Qt::ControlModifier, 1);
    const double image = plain.Paint();
    std::printf(
        "zoom %d : %-8d a move %.2f ms, %.2f   the wheel %.2f ms, %.2f   a zoom %.2f ms, %.2f\n",
        zoom.Screen, zoom.Picture, 1000 * move, move / image, 1000 * wheel, wheel / image,
        1000 * step, step / image);
  }
}

}  // namespace
}  // namespace terramark

int main(int argc, char** argv) {
  terramark::Run(argc, argv);
  return 0;
}
