#include "layoutfile/routes.h"

#include "document/links.h"
#include "document/numbers.h"

namespace terramark {

void Route::Append(std::int16_t area) {
  areas_[static_cast<std::size_t>(length_)] = static_cast<std::uint8_t>(area);
  ++length_;
  Exclude(area);
}

RouteFinder::RouteFinder(const Tables& tables) {
  entries_.reserve(4 * TableSize);
  for (std::int16_t i = 0; i <= LastNumber; ++i) {
    for (const std::int16_t nb : Neighbours(tables.AreaLinks(i))) {
      if (tables.AreaRegion(nb) == tables.AreaRegion(i))
        entries_.push_back(static_cast<std::uint8_t>(nb));
    }
    starts_[static_cast<std::size_t>(i) + 1] = entries_.size();
  }
}

std::string RouteFinder::BlitzRoute(std::int16_t a) const {
  Route best;
  for (const std::uint8_t nb : NeighboursInRegion(a)) {
    const Route route = WalkFrom(nb, a);
    if (route.Length() > best.Length()) best = route;
  }
  if (best.Length() == 0) return " ";
  std::string text;
  text.reserve(3 * TableSize);
  AppendTwoDigits(text, best.Length());
  for (const std::uint8_t area : best.Areas()) {
    text += ',';
    AppendTwoDigits(text, area);
  }
  return text;
}

Route RouteFinder::WalkFrom(std::int16_t first, std::int16_t a) const {
  Route route;
  route.Exclude(a);
  for (std::int16_t cur = first;;) {
    route.Append(cur);
    cur = NextRouteStep(route, cur);
    if (cur == 0) return route;
  }
}

/// The first neighbour in link order that the walk may enter; 0 when it ends. A walk never leaves
/// the Region, so only neighbours inside it count.
std::int16_t RouteFinder::NextRouteStep(const Route& route, std::int16_t cur) const {
  for (const std::uint8_t nb : NeighboursInRegion(cur)) {
    if (!route.Excludes(nb)) return nb;
  }
  return 0;
}

std::span<const std::uint8_t> RouteFinder::NeighboursInRegion(std::int16_t area) const {
  const auto place = static_cast<std::size_t>(area);
  return std::span(entries_).subspan(starts_[place], starts_[place + 1] - starts_[place]);
}

}  // namespace terramark
