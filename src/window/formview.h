// The inside of a form: a widget for each control of its table, updated with every change of the
// form. The window or dialog that contains it gets the form's caption and place.
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "forms/form.h"
#include "window/accessibilityfeed.h"
#include "window/keyfeed.h"
#include "window/pointerfeed.h"
#include "window/scrollfeed.h"

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
  /// For a window in which the form scrolls.
  ScrollFeed& Scrolling() { return scrolling_; }

  /// Called when the form is unloaded.
  std::function<void()> OnUnload;

 protected:
  bool event(QEvent* event) override;

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
  void InitTabOrder();
  void SetLabelBuddies();

  forms::Form& form_;
  PointerFeed pointer_;
  ScrollFeed scrolling_{*this, pointer_};
  KeyFeed keys_;
  AccessibilityFeed accessibility_;
  QTimer dragScroll_;
  /// A container is before the views in it.
  std::vector<std::unique_ptr<ControlView>> views_;
};

}  // namespace terramark::window
