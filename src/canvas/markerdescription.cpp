#include "canvas/markerdescription.h"

#include "document/numbers.h"
#include "shell/markers.h"

namespace terramark {

std::string AreaDescription(const Tables& tables, std::int16_t area) {
  return NumberText(area) + ": " + tables.AreaName(area) + " in Region " +
         tables.RegionName(tables.AreaRegion(area));
}

std::string FillCornerText(const Tables& tables, std::int16_t area) {
  const forms::Corner corner = FillCorner(tables, area);
  return std::string("fill point ") + (corner.Bottom ? "bottom" : "top") +
         (corner.Right ? " right" : " left");
}

std::string RegionDescription(const Tables& tables, std::int16_t region) {
  return NumberText(region) + ":  " + tables.RegionName(region);
}

}  // namespace terramark
