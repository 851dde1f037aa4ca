// The links between Regions that a layout has for the game, as texts of two-digit numbers.
#pragma once

#include <cstdint>
#include <string>

#include "document/tables.h"

namespace terramark {

/// The neighbours of an Area, 1 to 99, that are in another Region, as a link string in link order;
/// empty when there are none.
std::string BridgeText(const Tables& tables, std::int16_t area);

/// Every link that leaves a Region, 1 to 99: the number of pairs, of which only the last two
/// digits, and the pairs with commas between them, the Area outside first. Empty when no link
/// leaves it.
std::string BreakText(const Tables& tables, std::int16_t region);

}  // namespace terramark
