// The links between Regions that a layout carries for the game, as texts of two-digit numbers.
#pragma once

#include <cstdint>
#include <string>

#include "document/tables.h"

namespace terramark {

/// The neighbours of an Area, 1 to 99, that lie in another Region, in the form of a link string and
/// in link order; empty when it has none.
std::string BridgeText(const Tables& tables, std::int16_t area);

/// Every link that leaves a Region, 1 to 99: the number of pairs, its last two digits only, and the
/// pairs, the Area outside first, with commas between; empty when no link leaves it.
std::string BreakText(const Tables& tables, std::int16_t region);

}  // namespace terramark
