// Passes the mouse over all widgets of a form to the form's pointer router, in pixels of the form's
// inside, and shows which button is held down. A press with Shift alone, on a control that handles
// the release, asks for help and never reaches the widget.
#pragma once

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QObject>
#include <QPointer>
#include <QPushButton>
#include <functional>

#include "forms/form.h"
#include "window/controlview.h"

namespace terramark::window {

class PointerFeed : public QObject {
 public:
  /// `inside` is the widget that shows the form's inside; all watched widgets are in it.
  PointerFeed(forms::Form& form, QWidget& inside) : form_(form), inside_(inside) {}

  /// Watches the mouse over the widget, but not over its parts. A widget that uses the
  /// mouse itself receives it after the router.
  void Watch(QWidget& widget, MouseUse use);

  /// Whether a button of the mouse is down that was pressed on the form; the router counts presses
  /// that keys simulate, too.
  bool HoldsButton() const { return holdsButton_; }

  /// Called when a button has been released and the form has handled that.
  std::function<void()> OnRelease;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Press(QWidget& widget, const QMouseEvent& event);
  void Move(const QWidget& widget, const QMouseEvent& event);
  void Release(QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers keys);
  bool ContextMenu(const QWidget& widget, const QContextMenuEvent& event);
  void ReleaseLost(const QWidget& widget, const QMouseEvent& event);
  bool IsDown(Qt::MouseButton button) const;
  QPoint MapFromWidget(const QWidget& widget, const QMouseEvent& event) const;
  bool IsOverWidget(const QWidget& widget, const QMouseEvent& event) const;
  bool IsUncovered(QPoint at) const;

  forms::Form& form_;
  QWidget& inside_;
  QPointer<QPushButton> held_;
  bool holdsButton_ = false;
  /// Of the current press: whether the control under it handles its release, and whether it asks
  /// for help.
  bool reachesMouseUp_ = false;
  bool asksHelp_ = false;
};

}  // namespace terramark::window
