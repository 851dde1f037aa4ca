// The inside of a form: a widget for each control of its table, updated with every change of the
// form. The window or dialog that contains it gets the form's caption and place.
#pragma once

#include <QPointer>
#include <QTimer>
#include <QWheelEvent>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "forms/form.h"
#include "window/accessibilityfeed.h"
#include "window/keyfeed.h"
#include "window/pointerfeed.h"

namespace terramark::window {

class ControlView;

class FormView final : public QWidget, private forms::FormObserver {
 public:
  /// The form must outlive the view, and has only one view at a time.
  FormView(forms::Form& form, QWidget& parent);
  ~FormView() override;

  /// The size of the form's client area, in pixels.
  QSize DesignSize() const;
  /// Gives the window that contains the view the form's caption, icon and place.
  void ApplyWindowProperties();
  /// The widget of a control; null for a label on a picture.
  QWidget* WidgetOf(const forms::Control& control) const;

  /// Called when the form is unloaded.
  std::function<void()> OnUnload;
  /// Called with the place, in pixels of the view, of a control that has got the keyboard: at once,
  /// or when the mouse button that did it has been released. On the map, each key tells the place
  /// of the marker that the keys act on.
  std::function<void(const QRect& place)> OnFocus;
  /// Called when the wheel turns over the form or a control that has no use for it.
  std::function<void(const QWheelEvent& turn)> OnWheel;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ControlAdded(forms::Control& control) override;
  void ControlRemoved(forms::Control& control) override;
  void PropertyChanged(forms::Control& control, forms::PropertyId id) override;
  void Restacked(forms::Control& control) override;
  void FocusMoved(forms::Control& control) override;
  void Refreshed(forms::Control& control) override;
  void PointerMoved() override;
  void Unloaded() override;

  void FormChanged(forms::PropertyId id);
  void ShowOnCanvas(const forms::Control& label);
  ControlView* ViewOf(const forms::Control& control) const;
  void WatchInput(ControlView& view);
  void FocusGot(QWidget& widget, Qt::FocusReason reason);
  void TellFocus();
  void TellCursorItem(const QWidget& widget);
  void InitTabOrder();
  void SetLabelBuddies();

  forms::Form& form_;
  PointerFeed pointer_;
  KeyFeed keys_;
  AccessibilityFeed accessibility_;
  QTimer dragScroll_;
  /// Has the keyboard, which OnFocus has not been told.
  QPointer<QWidget> untold_;
  /// A container is before the views in it.
  std::vector<std::unique_ptr<ControlView>> views_;
};

}  // namespace terramark::window
