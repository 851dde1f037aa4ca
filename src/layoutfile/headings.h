// The headings of a layout's sections as the editor writes them. It reads any other line as a
// heading too.
#pragma once

namespace terramark {

inline constexpr char BridgesHeading[] = "BRIDGES BETWEEN REGIONS";
inline constexpr char RoutesHeading[] = "BLITZ";
inline constexpr char BreaksHeading[] = "BREAKS";
inline constexpr char AreaPlacesHeading[] = "X,Y Coordinates for Areas";
inline constexpr char RegionPlacesHeading[] = "X,Y Coordinates for Regions";
inline constexpr char LastLine[] = "END OF MAP DEFINITION";

}  // namespace terramark
