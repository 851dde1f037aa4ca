// What several commands do to a Region or to one of its Areas. Their markers must exist.
#pragma once

#include <cstdint>

namespace terramark {

struct Form1;

/// Removes a Region's colour: its marker is white and plain, its components unset.
void ResetRegionColour(Form1& form, std::int16_t region);
/// Gives a Region the name of a new one, also on its marker.
void ResetRegionName(Form1& form, std::int16_t region);
/// Removes an Area from its Region, and makes its marker white and plain.
void RemoveFromRegion(Form1& form, std::int16_t area);

}  // namespace terramark
