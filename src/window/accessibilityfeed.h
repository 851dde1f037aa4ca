// Reports to assistive tools what the widgets of a form do not report by themselves: the markers on
// a picture and the announcements. Does nothing while there is no such tool.
#pragma once

#include <QObject>
#include <QTimer>
#include <QWidget>
#include <vector>

#include "forms/control.h"

namespace terramark::window {

class CanvasView;
class ControlView;
class LabelView;

class AccessibilityFeed final : public QObject {
 public:
  AccessibilityFeed();

  /// A view has been made. A container must be added before the views in it.
  void Added(ControlView& view);
  /// A control has changed: reports when the current event has been handled to its end. The names
  /// of others may have changed too, without any property of theirs.
  void Changed(const forms::Control& control);
  /// A control is about to be destroyed; only its address is used.
  void Forget(const forms::Control& control);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Message {
    LabelView* View = nullptr;
    bool Fresh = false;
  };

  void NotifyChanges();

  std::vector<CanvasView*> canvases_;
  std::vector<Message> messages_;
  QTimer later_;
};

}  // namespace terramark::window
