#include "window/formarea.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

#include "widgets/scrollbarnames.h"

namespace terramark::window {

namespace {

void RevealAlong(QScrollBar& bar, int first, int length, int view) {
  bar.setValue(length > view ? first : std::clamp(bar.value(), first + length - view, first));
}

}  // namespace

FormArea::FormArea(QWidget& window) : QScrollArea(&window) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  widgets::NameScrollBars(*this, "Form");
}

void FormArea::SetContent(QWidget& inside, QSize least) {
  inside.setMinimumSize(least);
  if (widget() == nullptr) setWidget(&inside);
}

void FormArea::Reveal(const QRect& place) {
  RevealAlong(*horizontalScrollBar(), place.left(), place.width(), viewport()->width());
  RevealAlong(*verticalScrollBar(), place.top(), place.height(), viewport()->height());
}

void FormArea::ScrollByWheel(const QWheelEvent& turn) {
  const bool across = turn.modifiers().testFlag(Qt::ShiftModifier);
  const auto way = [across](QPoint by) { return across ? by.transposed() : by; };
  QWheelEvent event(turn.position(), turn.globalPosition(), way(turn.pixelDelta()),
                    way(turn.angleDelta()), turn.buttons(), {}, turn.phase(), turn.inverted());
  wheelEvent(&event);
}

void FormArea::keyPressEvent(QKeyEvent* event) {
  event->ignore();
}

/// Qt's area would then scroll as it thinks fit, beside Reveal.
bool FormArea::focusNextPrevChild(bool next) {
  // NOLINTNEXTLINE(bugprone-parent-virtual-call): the parent's is what must not run.
  return QWidget::focusNextPrevChild(next);
}

void FormArea::scrollContentsBy(int across, int down) {
  QScrollArea::scrollContentsBy(across, down);
  // Qt moves what was painted by whole pixels of the device, which is wrong where the scale is no
  // whole number.
  viewport()->update();
}

}  // namespace terramark::window
