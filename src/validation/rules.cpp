#include "validation/rules.h"

#include <optional>
#include <utility>

#include "document/links.h"
#include "document/numbers.h"

namespace terramark {

namespace {

using Fault = std::optional<std::string>;

/// The first number from 1 to last for which faulty gives a text.
template <typename Faulty>
Fault FirstOf(std::int16_t last, Faulty faulty) {
  for (std::int16_t number = 1; number <= last; ++number) {
    if (Fault fault = faulty(number)) return fault;
  }
  return std::nullopt;
}

std::string AreaAt(std::int16_t i) {
  return "Area#" + NumberText(i);
}

std::string RegionAt(std::int16_t r) {
  return "Region#" + NumberText(r);
}

/// "Area# 7(Peru)", with what stands between the number and the bracket.
std::string AreaInBrackets(const Tables& t, std::int16_t i, const char* gap) {
  return AreaAt(i) + gap + "(" + t.AreaName(i) + ")";
}

Fault Picture(const Tables& t) {
  if (!t.PictureFile.empty()) return std::nullopt;
  return "No Map file (.WMF/.BMP)";
}

Fault EnoughAreas(const Tables& t) {
  if (t.AreaCount >= 2) return std::nullopt;
  return "Number of Areas must be more than 1";
}

Fault EnoughRegions(const Tables& t) {
  if (t.RegionCount >= 2) return std::nullopt;
  return "Number of Regions must be more than 1";
}

Fault WholeHands(const Tables& t) {
  if (t.AreaCount % 6 == 0) return std::nullopt;
  return "Number of Areas must be divisible by 2 and 3";
}

Fault AreasInRegions(const Tables& t) {
  return FirstOf(t.AreaCount, [&](std::int16_t i) -> Fault {
    if (t.AreaRegion(i) != 0) return std::nullopt;
    return AreaAt(i) + " : " + t.AreaName(i) + " has no Region";
  });
}

// Looks at the string and not at its count.
Fault AreasLinked(const Tables& t) {
  return FirstOf(t.AreaCount, [&](std::int16_t i) -> Fault {
    if (!t.AreaLinks(i).empty() && t.AreaLinks(i)[0] != ' ') return std::nullopt;
    return AreaAt(i) + " : " + t.AreaName(i) + " has no neighbour";
  });
}

Fault RegionSizes(const Tables& t) {
  return FirstOf(t.RegionCount, [&](std::int16_t r) -> Fault {
    if (MembersOf(t, r) >= 2) return std::nullopt;
    return RegionAt(r) + " : " + t.RegionName(r) + " has <2 Areas";
  });
}

/// Whether some Area of r has an entry in r itself, or else in another Region.
bool HasLink(const Tables& t, std::int16_t r, bool inside) {
  for (std::int16_t i = 1; i <= t.AreaCount; ++i) {
    if (t.AreaRegion(i) != r) continue;
    for (const std::int16_t j : Neighbours(t.AreaLinks(i))) {
      if ((t.AreaRegion(j) == r) == inside) return true;
    }
  }
  return false;
}

Fault RegionsLinkedOutward(const Tables& t) {
  return FirstOf(t.RegionCount, [&](std::int16_t r) -> Fault {
    if (HasLink(t, r, false)) return std::nullopt;
    return RegionAt(r) + " : " + t.RegionName(r) + " is not linked to another Region";
  });
}

Fault RegionsLinkedInside(const Tables& t) {
  return FirstOf(t.RegionCount, [&](std::int16_t r) -> Fault {
    if (HasLink(t, r, true)) return std::nullopt;
    return "None of the Areas in " + RegionAt(r) + " : " + t.RegionName(r) + " are linked";
  });
}

Fault LinksMutual(const Tables& t) {
  return FirstOf(t.AreaCount, [&](std::int16_t i) -> Fault {
    for (const std::int16_t j : Neighbours(t.AreaLinks(i))) {
      if (IsNeighbour(t, j, i) != 0) continue;
      return AreaInBrackets(t, i, "") + " is not in the neighbour list of " +
             AreaInBrackets(t, j, " ");
    }
    return std::nullopt;
  });
}

Fault LinksNumbered(const Tables& t) {
  return FirstOf(t.AreaCount, [&](std::int16_t i) -> Fault {
    if (!Neighbours(t.AreaLinks(i)).List(0)) return std::nullopt;
    return AreaInBrackets(t, i, "") + " Please respecify its Neighbours";
  });
}

Fault AreasNamed(const Tables& t) {
  return FirstOf(t.AreaCount, [&](std::int16_t i) -> Fault {
    if (!t.AreaName(i).empty()) return std::nullopt;
    return AreaAt(i) + " has no name";
  });
}

Fault RegionsNamed(const Tables& t) {
  return FirstOf(t.RegionCount, [&](std::int16_t r) -> Fault {
    if (!t.RegionName(r).empty()) return std::nullopt;
    return RegionAt(r) + " has no name";
  });
}

struct Rule {
  std::int16_t Status;
  Fault (*Test)(const Tables&);
};

// In the order of testing, which is not that of the numbers.
// clang-format off
constexpr Rule Rules[] = {
    // status  test
    {15, Picture},
    {1, EnoughAreas},
    {2, EnoughRegions},
    {10, WholeHands},
    {11, AreasInRegions},
    {3, AreasLinked},
    {4, RegionSizes},
    {5, RegionsLinkedOutward},
    {6, RegionsLinkedInside},
    {7, LinksMutual},
    {12, LinksNumbered},
    {8, AreasNamed},
    {9, RegionsNamed},
};
// clang-format on

}  // namespace

Verdict JudgeMap(const Tables& tables) {
  for (const Rule& rule : Rules) {
    if (Fault fault = rule.Test(tables)) return {rule.Status, *std::move(fault)};
  }
  return {0, "This map has no errors"};
}

}  // namespace terramark
