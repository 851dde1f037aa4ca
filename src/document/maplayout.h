// What a Map Layout holds: a map with the places of its markers, as a value.
#pragma once

#include <optional>
#include <string>

#include "document/tables.h"

namespace terramark {

/// The top left corner of a marker, in pixels of the picture box on the screen on which the layout
/// was saved. It may lie outside.
struct MarkerPlace {
  float Left = 0;
  float Top = 0;

  bool operator==(const MarkerPlace&) const = default;
};

/// What the lines of a layout tell of a marker.
struct MarkerRecord {
  /// The colour on the line of its Region; of an Area's marker, on the Region's line above it. A
  /// file may have several lines of one Region, so that this is not always the Region's colour.
  /// Nothing where the Area or the Region has no line.
  std::optional<Components> RGB;
  /// Nothing where no line places it.
  std::optional<MarkerPlace> Place;

  bool operator==(const MarkerRecord&) const = default;
};

/// Twips a pixel, across and down, of a screen of 96 dots an inch.
inline constexpr float UsualTwips = 15;

struct MapLayout : Tables {
  /// The first line, any text.
  std::string Header;
  /// Twips a pixel of the screen on which it was saved, across and down; whole numbers when they
  /// have been read.
  float TwipsX = 0;
  float TwipsY = 0;
  /// By number; 0 is the hidden marker that new ones copy.
  Table<MarkerRecord> AreaMarkers;
  Table<MarkerRecord> RegionMarkers;

  bool operator==(const MapLayout&) const = default;
};

}  // namespace terramark
