// What several commands do to a Region and to an Area of it. Their markers must exist.
#pragma once

#include <cstdint>

namespace terramark {

struct Form1;

/// Takes a Region's colour away: its marker is white and plain, its components unset.
void ResetRegionColour(Form1& form, std::int16_t region);
/// Gives a Region the name of a new one, on its marker too.
void ResetRegionName(Form1& form, std::int16_t region);
/// Takes an Area out of its Region and makes its marker white and plain.
void RemoveFromRegion(Form1& form, std::int16_t area);

}  // namespace terramark
