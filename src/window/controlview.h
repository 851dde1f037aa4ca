// What the views of all kinds of control share. A view is a widget that shows one control.
#pragma once

#include <QRect>
#include <QWidget>
#include <memory>

#include "forms/control.h"

namespace terramark::window {

/// Who answers the mouse over a widget: the pointer router alone, or the widget too.
enum class MouseUse { RouterOnly, WidgetToo };

class ControlView {
 public:
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;
  virtual ~ControlView() = default;

  forms::Control& Shown() const { return control_; }
  QWidget& Widget() const { return widget_; }

  /// Updates the widget after a property has changed: place, Visible and Enabled here, all other
  /// properties in the view of the kind.
  void Changed(forms::PropertyId id);

  virtual MouseUse Mouse() const { return MouseUse::RouterOnly; }

 protected:
  /// Gives the widget the control's name, "Name" or "Name(i)", and its place.
  ControlView(forms::Control& control, QWidget& widget);

  /// Shows caption, text, value, picture or colours as they are now.
  virtual void ShowOwn(forms::PropertyId id) = 0;

 private:
  forms::Control& control_;
  QWidget& widget_;
};

/// The place of a control in its container, in pixels.
QRect BoundsOf(const forms::Control& control);

/// The pixel of a widget at the place of an event. An event has the place where a pixel of the
/// device begins. The widget's window must have been shown.
QPoint MapToPixel(const QWidget& widget, const QPointF& place);

/// Makes the view of a control, by its kind, inside its container's widget; null for a form. It
/// must be destroyed before the container's widget.
std::unique_ptr<ControlView> MakeView(forms::Control& control, QWidget& container);

}  // namespace terramark::window
