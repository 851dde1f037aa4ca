#include "layoutfile/regionlinks.h"

#include "document/links.h"
#include "document/numbers.h"

namespace terramark {

std::string BridgeText(const Tables& tables, std::int16_t area) {
  std::string gathered;
  for (const std::int16_t nb : Neighbours(tables.AreaLinks(area))) {
    if (tables.AreaRegion(nb) != tables.AreaRegion(area)) AppendTwoDigits(gathered, nb);
  }
  if (gathered.empty()) return gathered;
  return TwoDigit(static_cast<std::int16_t>(gathered.size() / 2)) + gathered;
}

std::string BreakText(const Tables& tables, std::int16_t region) {
  std::string pairs;
  std::int16_t n = 0;
  for (std::int16_t i = 1; i <= tables.AreaCount; ++i) {
    if (tables.AreaRegion(i) != region) continue;
    for (const std::int16_t nb : Neighbours(tables.AreaLinks(i))) {
      if (tables.AreaRegion(nb) == region) continue;
      pairs += ',';
      AppendTwoDigits(pairs, nb);
      pairs += ',';
      AppendTwoDigits(pairs, i);
      ++n;
    }
  }
  return pairs.empty() ? pairs : TwoDigit(n) + pairs;
}

}  // namespace terramark
