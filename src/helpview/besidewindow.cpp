#include "helpview/besidewindow.h"

#include <algorithm>
#include <array>
#include <limits>

namespace terramark::helpview {

namespace {

/// The place of that size in the room which is nearest to a corner.
QRect Within(const QRect& room, QPoint corner, QSize size) {
  const int last = std::max(room.left(), room.left() + room.width() - size.width());
  const int lowest = std::max(room.top(), room.top() + room.height() - size.height());
  return {
      QPoint(std::clamp(corner.x(), room.left(), last), std::clamp(corner.y(), room.top(), lowest)),
      size};
}

int Area(const QRect& place) {
  return place.isEmpty() ? 0 : place.width() * place.height();
}

}  // namespace

QRect PlaceBesideWindow(const QRect& room, const QRect& taken, QSize size, QSize least) {
  const int right = taken.left() + taken.width();
  const int below = taken.top() + taken.height();
  const int roomRight = room.left() + room.width();
  const int roomBelow = room.top() + room.height();
  // What is free on each side of the window, best first.
  const std::array sides{QRect(right, room.top(), roomRight - right, room.height()),
                         QRect(room.left(), room.top(), taken.left() - room.left(), room.height()),
                         QRect(room.left(), below, room.width(), roomBelow - below),
                         QRect(room.left(), room.top(), room.width(), taken.top() - room.top())};
  QRect best;
  for (const QRect& side : sides) {
    const QRect free = side & room;
    const QSize fitting = size.boundedTo(free.size());
    if (fitting != fitting.expandedTo(least)) continue;
    const QRect place = Within(free, taken.topLeft(), fitting);
    if (fitting == size) return place;
    if (Area(place) > Area(best)) best = place;
  }
  if (!best.isEmpty()) return best;
  int covered = std::numeric_limits<int>::max();
  for (const int left : {right, taken.left() - size.width()}) {
    const QRect place = Within(room, {left, taken.top()}, size);
    if (const int over = Area(place & taken); over < covered) {
      covered = over;
      best = place;
    }
  }
  return best;
}

}  // namespace terramark::helpview
