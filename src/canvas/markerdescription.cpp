#include "canvas/markerdescription.h"

#include "document/corner.h"
#include "document/numbers.h"

namespace terramark {

std::string AreaDescription(const Tables& tables, std::int16_t area) {
  return NumberText(area) + ": " + tables.AreaName(area) + " in Region " +
         tables.RegionName(tables.AreaRegion(area));
}

std::string FillPointText(const Tables& tables, std::int16_t area) {
  const std::int16_t corner = tables.AreaCorner(area);
  return std::string("fill point ") + (AtBottom(corner) ? "bottom" : "top") +
         (AtRight(corner) ? " right" : " left");
}

std::string RegionDescription(const Tables& tables, std::int16_t region) {
  return NumberText(region) + ":  " + tables.RegionName(region);
}

}  // namespace terramark
