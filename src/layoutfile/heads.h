// The heads of a layout's sections, as the editor writes them. Reading, it takes any other too.
#pragma once

namespace terramark {

inline constexpr char BridgesHead[] = "BRIDGES BETWEEN REGIONS";
inline constexpr char RoutesHead[] = "BLITZ";
inline constexpr char BreaksHead[] = "BREAKS";
inline constexpr char AreaPlacesHead[] = "X,Y Coordinates for Areas";
inline constexpr char RegionPlacesHead[] = "X,Y Coordinates for Regions";
inline constexpr char LastLine[] = "END OF MAP DEFINITION";

}  // namespace terramark
