// The inside of a form in a window that may be smaller: then it has scroll bars.
#pragma once

#include <QRect>
#include <QScrollArea>
#include <QWheelEvent>

namespace terramark::window {

/// The keys belong to the form, so the area neither takes the focus nor scrolls by keys.
class FormArea final : public QScrollArea {
 public:
  explicit FormArea(QWidget& window);

  /// Shows the form's inside, which takes all the room there is but never gets smaller than
  /// `least`, in pixels. The area becomes its parent; destroy it before the area.
  void SetContent(QWidget& inside, QSize least);

  /// Scrolls by the least that shows the whole place, in pixels of the inside, or its top left
  /// corner where it is larger than the window.
  void Reveal(const QRect& place);

  /// Scrolls by the wheel, sideways with Shift, as the map does.
  void ScrollByWheel(const QWheelEvent& turn);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void scrollContentsBy(int across, int down) override;
};

}  // namespace terramark::window
