// The markers: by number, how they look, and the colour of their own that a look covers.
#pragma once

#include <cstdint>

#include "forms/color.h"
#include "forms/controls.h"

namespace terramark {

struct Form1;

/// Pixels; the same for every Area's marker.
inline constexpr float AreaMarkerWidth = 32;
inline constexpr float AreaMarkerHeight = 16;
/// The template's; a caption then sets its own.
inline constexpr float RegionMarkerHeight = 16;

/// The marker of an Area, or null when that number has none, as 0 and a number that has gone.
forms::Label* AreaMarker(Form1& form, std::int16_t area);
/// The marker of a Region, likewise.
forms::Label* RegionMarker(Form1& form, std::int16_t region);

/// The marker that the keys on the map act on; null where none has the ring, or it is hidden.
forms::Control* MarkerAtCursor(Form1& form);

/// Scrolls a marker into view, with some ground around it; not to one that is hidden.
void ScrollMarkerIntoView(Form1& form, const forms::Control& marker);

/// What is selected lives in the looks of the markers and nowhere else.
enum class MarkerState {
  Plain,    // its own colour on ClrBlack
  Current,  // ClrBlack on ClrWhite
  Marked,   // ClrWhite on ClrGrey
};

/// By the background alone: a marker may keep that of a look under its own colour.
MarkerState MarkerStateOf(const forms::Label& marker);
void Show(forms::Label& marker, MarkerState look);

/// The marker's own colour, which its Tag keeps as decimal text; black for a Tag without a number.
forms::Color OwnColour(const forms::Label& marker);

/// How a Tag's text begins. Both read as the same number.
enum class TagForm { WithBlank, WithoutBlank };

/// Gives a marker a colour of its own, as text colour and in the Tag. The background stays.
void SetOwnColour(forms::Label& marker, forms::Color colour, TagForm text);

/// Gives a marker a colour of its own and the plain look.
void PaintMarker(forms::Label& marker, forms::Color colour, TagForm text = TagForm::WithBlank);

/// Gives an Area's marker the own colour of its Region's, Tag and all. The background stays.
void CopyRegionColour(forms::Label& area, const forms::Label& region);

/// Makes a corner of an Area's marker its fill point, and shows it in the caption. The marker
/// must exist.
void SetCorner(Form1& form, std::int16_t area, std::int16_t corner);

}  // namespace terramark
