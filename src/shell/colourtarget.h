// The colour panel: the buttons of its colours, and what its scroll bars edit, which RGBFrame.Tag
// stores as a text.
#pragma once

#include <cstdint>

#include "document/tables.h"

namespace terramark {

struct Form1;

/// The PlColor button of the current Region; the buttons before it are the rows of PlayerRGB.
inline constexpr std::int16_t RegionButton = PlayerColours;

struct ColourTarget {
  enum class Kind { None, Player, Region };

  Kind Of = Kind::None;
  std::int16_t Number = 0;  // a row of PlayerRGB, or a Region
};

/// The target in the Tag: "-1" or nothing for none, "0" to "3" for a row of PlayerRGB, "R" and a
/// number for a Region.
ColourTarget TargetOf(const Form1& form);

/// Gives the buttons of PlayerRGB their colours.
void ShowPlayerColours(Form1& form);

/// Enables the bars for a target, and disables them for none.
void SetColourTarget(Form1& form, ColourTarget target);

}  // namespace terramark
