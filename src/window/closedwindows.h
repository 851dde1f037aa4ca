// Drops the input for windows that have closed.
#pragma once

#include <QObject>

namespace terramark::window {

/// While the program is busy, keys and presses queue up for the window that was active when they
/// were made. When the first of them closes a box, Qt would still deliver the others to its
/// buttons, and could turn a No into a Yes. They are dropped.
class ClosedWindows : public QObject {
 public:
  /// Filters the events of the application for as long as this object lives.
  ClosedWindows();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace terramark::window
