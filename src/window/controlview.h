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

  /// Brings the widget into line after a property has changed: place, Visible and Enabled here, all
  /// else in the view of the kind.
  void Changed(forms::PropertyId id);

  virtual MouseUse Mouse() const { return MouseUse::RouterOnly; }

 protected:
  /// Names the widget after the control, "Name" or "Name(i)", and places it.
  ControlView(forms::Control& control, QWidget& widget);

  /// Shows caption, text, value, picture or colours as they are now.
  virtual void ShowOwn(forms::PropertyId id) = 0;

 private:
  forms::Control& control_;
  QWidget& widget_;
};

/// Where a control stands in its container, in pixels.
QRect BoundsOf(const forms::Control& control);

/// The pixel of a widget that is seen at a place in it, as an event tells it: where a pixel of the
/// device begins. The widget's window must have been shown.
QPoint MapToPixel(const QWidget& widget, const QPointF& place);

/// Makes the view of a control inside its container's widget, by its kind; null for a form. It must
/// go before the container's widget does.
std::unique_ptr<ControlView> MakeView(forms::Control& control, QWidget& container);

}  // namespace terramark::window
