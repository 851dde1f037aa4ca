// What a marker is called: by the help bar, and by assistive tools.
#pragma once

#include <cstdint>
#include <string>

#include "document/tables.h"

namespace terramark {

/// As in " 7: Ash in Region North"; the Area's number must lie in the tables.
std::string AreaDescription(const Tables& tables, std::int16_t area);
/// As in " 2:  North"; likewise.
std::string RegionDescription(const Tables& tables, std::int16_t region);

}  // namespace terramark
