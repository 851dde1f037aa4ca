#include "document/tables.h"

#include "document/links.h"

namespace terramark {

namespace {

constexpr Components UnsetRGB{UnsetComponent, UnsetComponent, UnsetComponent};

}  // namespace

void ClearRows(Tables& tables) {
  // All members are named here, so that a new one does not compile until somebody decides whether
  // it is cleared. Counts, colours and picture stay.
  [[maybe_unused]] auto& [areaCount, regionCount, areas, regions, playerRGB, pictureFile] = tables;
  regions(0).RGB = UnsetRGB;
  for (std::int16_t i = 1; i <= LastNumber; ++i) {
    areas(i) = {.Name = UnknownName, .Links = ClearedLinks, .Symbol{}, .Corner = areas(i).Corner};
    regions(i) = {.Name = UnknownName, .Armies = NewArmies, .RGB = UnsetRGB};
  }
}

Tables EmptyMap() {
  Tables tables;
  tables.AreaName(0) = UnknownName;
  tables.RegionName(0) = UnknownName;
  ClearRows(tables);
  return tables;
}

}  // namespace terramark
