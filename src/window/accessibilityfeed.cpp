#include "window/accessibilityfeed.h"

#include <QAccessible>
#include <memory>

#include "pictures/cp1252.h"
#include "window/accessiblenames.h"
#include "window/canvasaccessible.h"
#include "window/canvasview.h"
#include "window/helpwindow.h"
#include "window/messageaccessible.h"

namespace terramark::window {

namespace {

/// Of a window that is no dialog, which would pass for a part of one.
class WindowAccessible final : public QAccessibleWidget {
 public:
  explicit WindowAccessible(HelpWindow& window) : QAccessibleWidget(&window, QAccessible::Window) {}
};

QAccessibleInterface* Make(const QString& /*className*/, QObject* object) {
  if (auto* canvas = dynamic_cast<CanvasView*>(object)) {
    return std::make_unique<CanvasAccessible>(*canvas).release();
  }
  if (auto* window = dynamic_cast<HelpWindow*>(object)) {
    return std::make_unique<WindowAccessible>(*window).release();
  }
  auto* label = dynamic_cast<LabelView*>(object);
  if (label == nullptr) return nullptr;
  switch (label->Label().Announcement) {
    case forms::Announcement::AtOnce:
      return std::make_unique<MessageAccessible>(*label).release();
    case forms::Announcement::OnRequest:
      return std::make_unique<OnRequestAccessible>(*label).release();
    case forms::Announcement::AsName:
      break;
  }
  return nullptr;
}

template <typename Accessible>
Accessible& AccessibleOf(QWidget& widget) {
  return dynamic_cast<Accessible&>(*QAccessible::queryAccessibleInterface(&widget));
}

/// An event while the widget was being built has found it a plain one.
void ForgetEarlyAccessible(QWidget& widget) {
  QAccessible::deleteAccessibleInterface(
      QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&widget)));
}

}  // namespace

AccessibilityFeed::AccessibilityFeed() {
  QAccessible::installFactory(Make);
  later_.setSingleShot(true);
  connect(&later_, &QTimer::timeout, this, &AccessibilityFeed::Tell);
}

void AccessibilityFeed::Added(ControlView& view) {
  ForgetEarlyAccessible(view.Widget());
  NameScrollBars(view.Widget(), pictures::FromCp1252(view.Shown().AccessibleName));
  if (auto* canvas = dynamic_cast<CanvasView*>(&view)) {
    canvases_.push_back(canvas);
    canvas->installEventFilter(this);
  } else if (auto* label = dynamic_cast<LabelView*>(&view)) {
    if (label->Label().Announcement == forms::Announcement::AtOnce) messages_.push_back({label});
  }
}

void AccessibilityFeed::Changed(const forms::Control& control) {
  if (!QAccessible::isActive()) return;
  for (Message& message : messages_) {
    if (&message.View->Shown() == &control) message.Fresh = true;
  }
  later_.start();
}

void AccessibilityFeed::Gone(const forms::Control& control) {
  const auto shows = [&](const ControlView& view) { return &view.Shown() == &control; };
  std::erase_if(canvases_, [&](const CanvasView* canvas) { return shows(*canvas); });
  std::erase_if(messages_, [&](const Message& message) { return shows(*message.View); });
  for (CanvasView* canvas : canvases_) AccessibleOf<CanvasAccessible>(*canvas).Gone(control);
}

bool AccessibilityFeed::eventFilter(QObject* watched, QEvent* event) {
  const bool in = event->type() == QEvent::FocusIn;
  if (!QAccessible::isActive() || (!in && event->type() != QEvent::FocusOut)) return false;
  if (in) AccessibleOf<CanvasAccessible>(*static_cast<QWidget*>(watched)).Refocused();
  later_.start();
  return false;
}

void AccessibilityFeed::Tell() {
  for (CanvasView* canvas : canvases_) AccessibleOf<CanvasAccessible>(*canvas).Tell();
  for (Message& message : messages_) {
    if (message.Fresh) AccessibleOf<MessageAccessible>(*message.View).Announce();
    message.Fresh = false;
  }
}

}  // namespace terramark::window
