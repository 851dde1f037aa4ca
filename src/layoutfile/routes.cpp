#include "layoutfile/routes.h"

#include "document/links.h"
#include "document/numbers.h"

namespace terramark {

namespace {

/// Characters of a route for each of its Areas: two digits and a comma.
constexpr std::size_t EntryLength = 3;

void Append(std::string& route, std::int16_t area) {
  route += static_cast<char>('0' + area / 10);
  route += static_cast<char>('0' + area % 10);
  route += ',';
}

bool Holds(std::string_view route, std::int16_t area) {
  for (std::size_t at = 0; at + 1 < route.size(); at += EntryLength) {
    if ((route[at] - '0') * 10 + (route[at + 1] - '0') == area) return true;
  }
  return false;
}

std::string WalkFrom(const Tables& tables, std::int16_t first, std::int16_t a) {
  std::string route;
  for (std::int16_t cur = first;;) {
    Append(route, cur);
    cur = NextRouteStep(tables, route, a, cur, tables.AreaRegion(a));
    if (cur == 0) return route;
  }
}

}  // namespace

std::string BlitzRoute(const Tables& tables, std::int16_t a) {
  std::string best;
  for (const std::int16_t nb : Neighbours(tables.AreaLinks(a))) {
    if (tables.AreaRegion(nb) != tables.AreaRegion(a)) continue;
    std::string route = WalkFrom(tables, nb, a);
    if (route.size() > best.size()) best = std::move(route);
  }
  if (best.empty()) return " ";
  best.pop_back();
  return TwoDigit(static_cast<std::int16_t>(best.size() / EntryLength + 1)) + "," + best;
}

std::int16_t NextRouteStep(const Tables& tables, std::string_view route, std::int16_t a,
                           std::int16_t cur, std::int16_t region) {
  for (const std::int16_t nb : Neighbours(tables.AreaLinks(cur))) {
    if (nb == a) continue;
    if (tables.AreaRegion(nb) == region && !Holds(route, nb)) return nb;
  }
  return 0;
}

}  // namespace terramark
