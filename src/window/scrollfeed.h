// Finds the place to scroll to when the focus moves, or the item that the keys on the map act on,
// and the wheel where no control uses it.
#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QWheelEvent>
#include <functional>

#include "window/controlview.h"
#include "window/pointerfeed.h"

namespace terramark::window {

/// Without callbacks it does nothing. The wheel has to be reported, since the pointer feed stops Qt
/// from passing what a control ignores to the widgets below it.
class ScrollFeed : public QObject {
 public:
  /// The inside of the form, and who follows the mouse over it; both must outlive the feed.
  ScrollFeed(QWidget& inside, PointerFeed& pointer);

  /// Watches the focus, the keys and the wheel of a control.
  void Watch(ControlView& view);

  /// Called with the place, in pixels of the inside, of a control that has got the keyboard: at
  /// once, or when the mouse button that did it has been released. On a picture box it is, after
  /// each key, the place of the item that the box's keys act on.
  std::function<void(const QRect& place)> OnReveal;
  /// Called when the wheel turns over the form or a control that has no use for it.
  std::function<void(const QWheelEvent& turn)> OnWheel;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void GotFocus(QWidget& widget, Qt::FocusReason reason);
  void RevealPending();
  void RevealCursorItem(const QWidget& widget) const;
  void Reveal(const QWidget& widget, const QRect& part) const;

  QWidget& inside_;
  const PointerFeed& pointer_;
  /// Has got the focus by a press of a button that is still down.
  QPointer<QWidget> pendingFocus_;
  /// Had the focus last.
  QPointer<QWidget> lastFocus_;
};

}  // namespace terramark::window
