// Notices what the scrolling of a form has to know: which place has got the keyboard, and where the
// wheel turns.
#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QWheelEvent>
#include <functional>

#include "window/controlview.h"
#include "window/pointerfeed.h"

namespace terramark::window {

/// Reports to a window that scrolls; where there is none, nothing is changed or kept back.
class ScrollFeed : public QObject {
 public:
  /// The inside of the form, and who follows the mouse over it; both must outlive the feed.
  ScrollFeed(QWidget& inside, PointerFeed& pointer);

  void Watch(ControlView& view);

  /// Called with the place, in pixels of the inside, of a control that has got the keyboard: at
  /// once, or when the mouse button that did it has been released. On a picture box it is, after
  /// each key, the place of the item that the box's keys act on.
  std::function<void(const QRect& place)> OnFocus;
  /// Called when the wheel turns over the form or a control that has no use for it.
  std::function<void(const QWheelEvent& turn)> OnWheel;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void GotFocus(QWidget& widget, Qt::FocusReason reason);
  void Tell();
  void TellCursorItem(const QWidget& widget) const;
  void Tell(const QWidget& widget, const QRect& part) const;

  QWidget& inside_;
  const PointerFeed& pointer_;
  /// Has the keyboard, which OnFocus has not been told.
  QPointer<QWidget> untold_;
};

}  // namespace terramark::window
