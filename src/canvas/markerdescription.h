// The description of a marker, for the help bar and for assistive tools.
#pragma once

#include <cstdint>
#include <string>

#include "document/tables.h"

namespace terramark {

/// For example " 7: Ash in Region North". The Area's number must be in the tables.
std::string AreaDescription(const Tables& tables, std::int16_t area);
/// For example "fill point bottom left". The Area's number must be in the tables.
std::string FillCornerText(const Tables& tables, std::int16_t area);
/// For example " 2:  North". The Region's number must be in the tables.
std::string RegionDescription(const Tables& tables, std::int16_t region);

}  // namespace terramark
