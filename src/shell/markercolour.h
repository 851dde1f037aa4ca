// The saved colour of a marker: its plain ForeColor, kept as decimal text in its Tag while a mark
// covers it.
#pragma once

#include <cstdint>

#include "document/numbers.h"
#include "forms/controls.h"
#include "shell/colours.h"

namespace terramark {

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
