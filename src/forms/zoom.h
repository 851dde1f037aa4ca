// How far a picture is magnified, and lengths on the picture and on the screen under that.
#pragma once

namespace terramark::forms {

/// So many pixels of the screen for so many of the picture; one of the two is 1.
struct Magnification {
  int Screen = 1;
  int Picture = 1;

  bool operator==(const Magnification&) const = default;
};

/// Those that a picture box knows, from the smallest on.
inline constexpr Magnification ZoomSteps[] = {{1, 4}, {1, 2}, {1, 1}, {2, 1},
                                              {3, 1}, {4, 1}, {6, 1}, {8, 1}};
inline constexpr Magnification ActualSize{1, 1};

/// The next larger or smaller step; at the ends, the same. No other magnification may be given.
Magnification Larger(Magnification zoom);
Magnification Smaller(Magnification zoom);

/// Where on the screen a pixel of the picture begins, both counted from the picture's edge: the
/// first pixel of the screen that shows it or, where none does, one behind it. It may lie outside
/// the picture, up to 2^24 pixels either way.
int ToScreen(Magnification zoom, int onPicture);
/// The pixel of the picture that is seen at a pixel of the screen: of several, the one in their
/// middle.
int ToPicture(Magnification zoom, int onScreen);

}  // namespace terramark::forms
