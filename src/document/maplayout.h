// The contents of a Map Layout: a map with the places of its markers, as a value.
#pragma once

#include <optional>
#include <string>

#include "document/tables.h"

namespace terramark {

/// The top left corner of a marker, in pixels of the picture box on the screen on which the layout
/// was saved. It may be outside the box.
struct MarkerPlace {
  float Left = 0;
  float Top = 0;

  bool operator==(const MarkerPlace&) const = default;
};

/// What the lines of a layout say about a marker.
struct MarkerRecord {
  /// The colour in the line of its Region; for an Area's marker, in the Region's line above it. A
  /// file may have several lines of one Region, so this may differ from the Region's colour.
  /// Nothing where the Area or the Region has no line.
  std::optional<Components> RGB;
  /// Nothing without a line for its place.
  std::optional<MarkerPlace> Place;

  bool operator==(const MarkerRecord&) const = default;
};

/// Twips per pixel, across and down, of a screen with 96 dots per inch.
inline constexpr float UsualTwips = 15;

struct MapLayout : Tables {
  /// The first line, any text.
  std::string Header;
  /// Twips per pixel of the screen on which it was saved, across and down. Whole numbers after
  /// reading.
  float TwipsX = 0;
  float TwipsY = 0;
  /// By number; marker 0 is the hidden template of new ones.
  Table<MarkerRecord> AreaMarkers;
  Table<MarkerRecord> RegionMarkers;

  bool operator==(const MapLayout&) const = default;
};

}  // namespace terramark
