#include "validation/rules.h"

#include <algorithm>
#include <optional>
#include <span>
#include <utility>

#include "document/links.h"
#include "document/numbers.h"

namespace terramark {

namespace {

/// A text, and the number of the Area or the Region at fault.
struct Fault {
  std::string Text;
  std::int16_t Number = 0;
};

using Finding = std::optional<Fault>;
using FaultText = std::optional<std::string>;

/// The finding for a fault of the map as a whole.
Finding FaultIf(bool faulty, const char* text) {
  return faulty ? Finding(Fault{text}) : std::nullopt;
}

/// The finding for the first number from 1 to `last` for which `faulty` returns a text.
template <typename Faulty>
Finding FirstFault(std::int16_t last, Faulty faulty) {
  for (std::int16_t number = 1; number <= last; ++number) {
    if (FaultText text = faulty(number)) return Fault{*std::move(text), number};
  }
  return std::nullopt;
}

std::string AreaAt(std::int16_t i) {
  return "Area#" + NumberText(i);
}

std::string RegionAt(std::int16_t r) {
  return "Region#" + NumberText(r);
}

/// For example "Area# 7(Peru)"; `gap` is between the number and the bracket.
std::string AreaInBrackets(const Tables& t, std::int16_t i, const char* gap) {
  return AreaAt(i) + gap + "(" + t.AreaName(i) + ")";
}

Finding HasPicture(const Tables& t) {
  return FaultIf(t.PictureFile.empty(), "No Map file (.WMF/.BMP)");
}

Finding EnoughAreas(const Tables& t) {
  return FaultIf(t.AreaCount < 2, "Number of Areas must be more than 1");
}

Finding EnoughRegions(const Tables& t) {
  return FaultIf(t.RegionCount < 2, "Number of Regions must be more than 1");
}

Finding AreasDivisible(const Tables& t) {
  return FaultIf(t.AreaCount % 6 != 0, "Number of Areas must be divisible by 2 and 3");
}

Finding AreasInRegions(const Tables& t) {
  return FirstFault(t.AreaCount, [&](std::int16_t i) -> FaultText {
    if (t.AreaRegion(i) != 0) return std::nullopt;
    return AreaAt(i) + " : " + t.AreaName(i) + " has no Region";
  });
}

/// Tests the string and not its count: "00" passes here, and stops a save.
Finding AreasLinked(const Tables& t) {
  return FirstFault(t.AreaCount, [&](std::int16_t i) -> FaultText {
    if (!t.AreaLinks(i).empty() && t.AreaLinks(i)[0] != ' ') return std::nullopt;
    return AreaAt(i) + " : " + t.AreaName(i) + " has no neighbour";
  });
}

Finding RegionSizes(const Tables& t) {
  return FirstFault(t.RegionCount, [&](std::int16_t r) -> FaultText {
    if (MemberCount(t, r) >= 2) return std::nullopt;
    return RegionAt(r) + " : " + t.RegionName(r) + " has <2 Areas";
  });
}

/// Where a link from an Area of a Region ends.
enum class LinkEnd { SameRegion, OtherRegion };

/// Whether some Area of r has such a link.
bool HasLink(const Tables& t, std::int16_t r, LinkEnd wanted) {
  for (std::int16_t i = 1; i <= t.AreaCount; ++i) {
    if (t.AreaRegion(i) != r) continue;
    for (const std::int16_t j : Neighbours(t.AreaLinks(i))) {
      const LinkEnd end = t.AreaRegion(j) == r ? LinkEnd::SameRegion : LinkEnd::OtherRegion;
      if (end == wanted) return true;
    }
  }
  return false;
}

Finding RegionsLinkedOutward(const Tables& t) {
  return FirstFault(t.RegionCount, [&](std::int16_t r) -> FaultText {
    if (HasLink(t, r, LinkEnd::OtherRegion)) return std::nullopt;
    return RegionAt(r) + " : " + t.RegionName(r) + " is not linked to another Region";
  });
}

Finding RegionsLinkedInside(const Tables& t) {
  return FirstFault(t.RegionCount, [&](std::int16_t r) -> FaultText {
    if (HasLink(t, r, LinkEnd::SameRegion)) return std::nullopt;
    return "None of the Areas in " + RegionAt(r) + " : " + t.RegionName(r) + " are linked";
  });
}

Finding LinksMutual(const Tables& t) {
  return FirstFault(t.AreaCount, [&](std::int16_t i) -> FaultText {
    for (const std::int16_t j : Neighbours(t.AreaLinks(i))) {
      if (IsNeighbour(t, j, i) != 0) continue;
      return AreaInBrackets(t, i, "") + " is not in the neighbour list of " +
             AreaInBrackets(t, j, " ");
    }
    return std::nullopt;
  });
}

Finding LinksNumbered(const Tables& t) {
  return FirstFault(t.AreaCount, [&](std::int16_t i) -> FaultText {
    if (!Neighbours(t.AreaLinks(i)).Contains(0)) return std::nullopt;
    return AreaInBrackets(t, i, "") + " Please respecify its Neighbours";
  });
}

Finding AreasNamed(const Tables& t) {
  return FirstFault(t.AreaCount, [&](std::int16_t i) -> FaultText {
    if (!t.AreaName(i).empty()) return std::nullopt;
    return AreaAt(i) + " has no name";
  });
}

Finding RegionsNamed(const Tables& t) {
  return FirstFault(t.RegionCount, [&](std::int16_t r) -> FaultText {
    if (!t.RegionName(r).empty()) return std::nullopt;
    return RegionAt(r) + " has no name";
  });
}

struct Rule {
  std::int16_t Status;
  Subject About;
  Finding (*Test)(const Tables&);
};

/// In the order of the tests, which is not that of the numbers.
// clang-format off
constexpr Rule Rules[] = {
    // status  about  test
    {15, Subject::Picture, HasPicture},
    {1, Subject::Counts, EnoughAreas},
    {2, Subject::Counts, EnoughRegions},
    {10, Subject::Counts, AreasDivisible},
    {11, Subject::Area, AreasInRegions},
    {3, Subject::Area, AreasLinked},
    {4, Subject::Region, RegionSizes},
    {5, Subject::Region, RegionsLinkedOutward},
    {6, Subject::Region, RegionsLinkedInside},
    {7, Subject::Area, LinksMutual},
    {12, Subject::Area, LinksNumbered},
    {8, Subject::Area, AreasNamed},
    {9, Subject::Region, RegionsNamed},
};
// clang-format on

constexpr bool NumbersDiffer(std::span<const Rule> rules) {
  return std::ranges::all_of(rules, [rules](const Rule& rule) {
    return std::ranges::count(rules, rule.Status, &Rule::Status) == 1;
  });
}
static_assert(NumbersDiffer(Rules), "two rules with one status number");

}  // namespace

Verdict CheckMap(const Tables& tables) {
  for (const Rule& rule : Rules) {
    if (Finding fault = rule.Test(tables)) {
      return {rule.Status, std::move(fault->Text), rule.About, fault->Number};
    }
  }
  return {0, "This map has no errors"};
}

}  // namespace terramark
