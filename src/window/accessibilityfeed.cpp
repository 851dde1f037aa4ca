#include "window/accessibilityfeed.h"

#include <QAccessible>
#include <memory>

#include "paint/cp1252.h"
#include "widgets/scrollbarnames.h"
#include "window/canvasaccessible.h"
#include "window/canvasview.h"
#include "window/messageaccessible.h"

namespace terramark::window {

namespace {

QAccessibleInterface* Make(const QString& /*className*/, QObject* object) {
  if (auto* canvas = dynamic_cast<CanvasView*>(object)) {
    return std::make_unique<CanvasAccessible>(*canvas).release();
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

/// Qt may have made a plain interface already, for an event while the widget was being built.
/// Deletes that one, so that the factory is asked anew.
void ForgetEarlyAccessible(QWidget& widget) {
  QAccessible::deleteAccessibleInterface(
      QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&widget)));
}

}  // namespace

AccessibilityFeed::AccessibilityFeed() {
  QAccessible::installFactory(Make);
  later_.setSingleShot(true);
  connect(&later_, &QTimer::timeout, this, &AccessibilityFeed::NotifyChanges);
}

void AccessibilityFeed::Added(ControlView& view) {
  ForgetEarlyAccessible(view.Widget());
  widgets::NameScrollBars(view.Widget(), paint::FromCp1252(view.Shown().AccessibleName));
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

void AccessibilityFeed::Forget(const forms::Control& control) {
  const auto shows = [&](const ControlView& view) { return &view.Shown() == &control; };
  std::erase_if(canvases_, [&](const CanvasView* canvas) { return shows(*canvas); });
  std::erase_if(messages_, [&](const Message& message) { return shows(*message.View); });
  for (CanvasView* canvas : canvases_) AccessibleOf<CanvasAccessible>(*canvas).Forget(control);
}

bool AccessibilityFeed::eventFilter(QObject* watched, QEvent* event) {
  const bool in = event->type() == QEvent::FocusIn;
  if (!QAccessible::isActive() || (!in && event->type() != QEvent::FocusOut)) return false;
  if (in) AccessibleOf<CanvasAccessible>(*static_cast<QWidget*>(watched)).Refocused();
  later_.start();
  return false;
}

void AccessibilityFeed::NotifyChanges() {
  for (CanvasView* canvas : canvases_) AccessibleOf<CanvasAccessible>(*canvas).NotifyChanges();
  for (Message& message : messages_) {
    if (message.Fresh) AccessibleOf<MessageAccessible>(*message.View).Announce();
    message.Fresh = false;
  }
}

}  // namespace terramark::window
