// The inside of a form in a window that may be smaller: then it has scroll bars.
#pragma once

#include <QRect>
#include <QScrollArea>
#include <QWheelEvent>

namespace terramark::window {

/// The keys belong to the form, so that the area neither takes the focus nor scrolls by keys.
class FormArea final : public QScrollArea {
 public:
  explicit FormArea(QWidget& window);

  /// Shows the form's inside, which takes all the room there is but never gets smaller than
  /// `least`, in pixels. The area does not own it.
  void Show(QWidget& inside, QSize least);

  /// Scrolls as little as shows the place, in pixels of the inside, as a whole, or its top left
  /// corner where it is larger than the window.
  void Reveal(const QRect& place);

  /// Scrolls by the wheel, sideways with Shift, as the map does.
  void TurnWheel(const QWheelEvent& turn);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void scrollContentsBy(int across, int down) override;
};

}  // namespace terramark::window
