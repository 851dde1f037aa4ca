#include "window/hearing.h"

#include <QAccessible>
#include <QScrollBar>
#include <memory>

#include "window/canvasaccess.h"
#include "window/canvasview.h"
#include "window/cp1252.h"
#include "window/helpwindow.h"
#include "window/messageaccess.h"

namespace terramark::window {

namespace {

forms::Voice VoiceOf(const LabelView& view) {
  return static_cast<const forms::Label&>(view.Shown()).Voice;
}

/// Of a window that is no dialog, which would pass for a part of one.
class WindowAccess final : public QAccessibleWidget {
 public:
  explicit WindowAccess(HelpWindow& window) : QAccessibleWidget(&window, QAccessible::Window) {}
};

QAccessibleInterface* Make(const QString& /*className*/, QObject* object) {
  if (auto* canvas = dynamic_cast<CanvasView*>(object)) {
    return std::make_unique<CanvasAccess>(*canvas).release();
  }
  if (auto* window = dynamic_cast<HelpWindow*>(object)) {
    return std::make_unique<WindowAccess>(*window).release();
  }
  auto* label = dynamic_cast<LabelView*>(object);
  if (label == nullptr) return nullptr;
  switch (VoiceOf(*label)) {
    case forms::Voice::Announced:
      return std::make_unique<MessageAccess>(*label).release();
    case forms::Voice::Silent:
      return std::make_unique<SilentAccess>(*label).release();
    case forms::Voice::Plain:
      break;
  }
  return nullptr;
}

template <typename Access>
Access& AccessOf(QWidget& widget) {
  return dynamic_cast<Access&>(*QAccessible::queryAccessibleInterface(&widget));
}

/// An event while the widget was being built has found it a plain one.
void ForgetEarlyAccess(QWidget& widget) {
  QAccessible::deleteAccessibleInterface(
      QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&widget)));
}

}  // namespace

Hearing::Hearing() {
  QAccessible::installFactory(Make);
  later_.setSingleShot(true);
  connect(&later_, &QTimer::timeout, this, &Hearing::Tell);
}

void Hearing::Added(ControlView& view) {
  ForgetEarlyAccess(view.Widget());
  NameScrollBars(view.Widget(), FromCp1252(view.Shown().SpokenName));
  if (auto* canvas = dynamic_cast<CanvasView*>(&view)) {
    canvases_.push_back(canvas);
    canvas->installEventFilter(this);
  } else if (auto* label = dynamic_cast<LabelView*>(&view)) {
    if (VoiceOf(*label) == forms::Voice::Announced) messages_.push_back({label});
  }
}

void Hearing::Changed(const forms::Control& control) {
  if (!QAccessible::isActive()) return;
  for (Message& message : messages_) {
    if (&message.View->Shown() == &control) message.Fresh = true;
  }
  later_.start();
}

void Hearing::Gone(const forms::Control& control) {
  const auto shows = [&](const ControlView& view) { return &view.Shown() == &control; };
  std::erase_if(canvases_, [&](const CanvasView* canvas) { return shows(*canvas); });
  std::erase_if(messages_, [&](const Message& message) { return shows(*message.View); });
  for (CanvasView* canvas : canvases_) AccessOf<CanvasAccess>(*canvas).Gone(control);
}

bool Hearing::eventFilter(QObject* watched, QEvent* event) {
  const bool in = event->type() == QEvent::FocusIn;
  if (!QAccessible::isActive() || (!in && event->type() != QEvent::FocusOut)) return false;
  if (in) AccessOf<CanvasAccess>(*static_cast<QWidget*>(watched)).Refocused();
  later_.start();
  return false;
}

void Hearing::Tell() {
  for (CanvasView* canvas : canvases_) AccessOf<CanvasAccess>(*canvas).Tell();
  for (Message& message : messages_) {
    if (message.Fresh) AccessOf<MessageAccess>(*message.View).Announce();
    message.Fresh = false;
  }
}

void NameScrollBars(const QWidget& widget, const QString& what) {
  for (QScrollBar* bar : widget.findChildren<QScrollBar*>()) {
    const char* const way = bar->orientation() == Qt::Horizontal ? "%1 sideways" : "%1 up and down";
    bar->setAccessibleName(QString(way).arg(what));
  }
}

}  // namespace terramark::window
