// What assistive tools are told of a form, beside what widgets tell by themselves: the markers on a
// picture and the announcements. Costs nothing while there is no such tool.
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

  /// A view has been made; of a container, before those in it.
  void Added(ControlView& view);
  /// Something of a control is to be told when the event in hand has run to its end: names that no
  /// property holds may have changed with it.
  void Changed(const forms::Control& control);
  /// A control is about to go; only its identity is used.
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
