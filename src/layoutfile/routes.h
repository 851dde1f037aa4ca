// The walks that a layout carries for the game: for every Area one through its own Region.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "document/tables.h"

namespace terramark {

/// The route text of an Area, 1 to 99: the two-digit number of Areas on the longest of the walks
/// that begin at its neighbours, and these Areas, with commas between; one blank for no route. Of
/// walks of equal length the one through the earlier neighbour in link order stands.
std::string BlitzRoute(const Tables& tables, std::int16_t a);

/// The Area to walk to from cur: the first neighbour in link order that lies in the Region, is not
/// a, where the walk started, and is not on the route; 0 when the walk ends. The route is two
/// digits and a comma for each of its Areas.
std::int16_t NextRouteStep(const Tables& tables, std::string_view route, std::int16_t a,
                           std::int16_t cur, std::int16_t region);

}  // namespace terramark
