// What a marker on the map shows, as a text.
#pragma once

#include <array>
#include <cmath>
#include <cstdio>
#include <string>

#include "shell/colours.h"
#include "shell/markers.h"

namespace terramark {

/// Caption, place, own colour as 0xBBGGRR and look. The colours of a look go together, but for a
/// marker that keeps a look's background under its own colour: "own on white".
inline std::string Marker(const forms::Label& marker) {
  const forms::Color own = OwnColour(marker);
  const forms::Color fore = marker.ForeColor;
  const char* look = marker.BackColor == ClrBlack   ? fore == own ? "plain" : "wrong"
                     : marker.BackColor == ClrWhite ? fore == ClrBlack ? "current" : "on white"
                     : fore == ClrWhite             ? "marked"
                                                    : "on grey";
  std::array<char, 99> text;
  std::snprintf(text.data(), text.size(), "%s at %.0f,%.0f %06x %s%s", marker.Caption.Get().c_str(),
                std::trunc(marker.Left), std::trunc(marker.Top), own, look,
                marker.Visible ? "" : " hidden");
  return text.data();
}

}  // namespace terramark
