// Keeps what was meant for a window that has closed from being obeyed.
#pragma once

#include <QObject>

namespace terramark::window {

/// While the program is busy keys and presses gather, each for the window that had them then. When
/// the first of them closes a box, the others would still reach its buttons, and could turn a No
/// into a Yes. They reach nobody.
class ClosedWindows : public QObject {
 public:
  /// Watches the application as long as this lives.
  ClosedWindows();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace terramark::window
