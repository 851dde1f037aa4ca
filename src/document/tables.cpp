#include "document/tables.h"

#include "document/links.h"

namespace terramark {

namespace {

constexpr Components UnsetRGB{UnsetComponent, UnsetComponent, UnsetComponent};

}  // namespace

void ClearRows(Tables& tables) {
  tables.RegionRGB(0) = UnsetRGB;
  for (std::int16_t i = 1; i <= LastNumber; ++i) {
    tables.Areas(i) = {
        .Name = UnknownName, .Links = ClearedLinks, .Symbol{}, .Corner = tables.AreaCorner(i)};
    tables.Regions(i) = {.Name = UnknownName, .Armies = NewArmies, .RGB = UnsetRGB};
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
