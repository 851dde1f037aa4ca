// The markers by number, and their saved colour: the plain ForeColor of a marker, kept as decimal
// text in its Tag while a mark covers it.
#pragma once

#include <cstdint>

#include "document/numbers.h"
#include "shell/colours.h"
#include "shell/form1.h"

namespace terramark {

/// The marker of an Area, or null when that number has none, as 0 and a number that has gone.
inline forms::Label* AreaMarker(Form1& form, std::int16_t area) {
  return area < 1 ? nullptr : form.ArmyAt.Find(area);
}

/// The marker of a Region, likewise.
inline forms::Label* RegionMarker(Form1& form, std::int16_t region) {
  return region < 1 ? nullptr : form.Continent.Find(region);
}

/// The colour that a Tag's text holds.
inline forms::Color TagColour(const forms::Control& marker) {
  return static_cast<forms::Color>(static_cast<std::int64_t>(ReadNumber(marker.Tag.Get())));
}

/// Gives a marker its own colour: as ForeColor, in the Tag, on ClrBlack.
inline void PaintMarker(forms::Label& marker, forms::Color colour) {
  marker.ForeColor = colour;
  marker.Tag = NumberText(static_cast<std::int32_t>(colour));
  marker.BackColor = ClrBlack;
}

}  // namespace terramark
