// The zoom of a picture, and the conversion of lengths between picture and screen.
#pragma once

namespace terramark::forms {

/// So many pixels of the screen for so many pixels of the picture; one of the two is 1.
struct Magnification {
  int Screen = 1;
  int Picture = 1;

  bool operator==(const Magnification&) const = default;
};

/// The steps of a picture box, from the smallest.
inline constexpr Magnification ZoomSteps[] = {{1, 32}, {1, 16}, {1, 8}, {1, 4}, {1, 2}, {1, 1},
                                              {2, 1},  {3, 1},  {4, 1}, {6, 1}, {8, 1}};
inline constexpr Magnification ActualSize{1, 1};

/// The next larger or smaller step; at the ends, the same. The argument must be a step.
Magnification Larger(Magnification zoom);
Magnification Smaller(Magnification zoom);

/// The place on the screen where a pixel of the picture begins, both counted from the picture's
/// edge: the first pixel of the screen that shows it or, if none does, the next one. It may be
/// outside the picture, up to 2^24 pixels each way.
int ToScreen(Magnification zoom, int onPicture);
/// The pixel of the picture that a pixel of the screen shows: of several, the middle one.
int ToPicture(Magnification zoom, int onScreen);

}  // namespace terramark::forms
