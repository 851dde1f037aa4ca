// The markers: by number, their states, and the colour that belongs to each.
#pragma once

#include <cstdint>

#include "document/tables.h"
#include "forms/color.h"
#include "forms/controls.h"

namespace terramark {

struct Form1;

/// Pixels; the same for every Area's marker.
inline constexpr float AreaMarkerWidth = 32;
inline constexpr float AreaMarkerHeight = 16;
/// The height of the template; a caption sets the height of its marker.
inline constexpr float RegionMarkerHeight = 16;

/// The marker of an Area, or null for a number without a marker, such as 0.
forms::Label* AreaMarker(Form1& form, std::int16_t area);
/// The marker of a Region, or null likewise.
forms::Label* RegionMarker(Form1& form, std::int16_t region);

/// The marker that the keys on the map act on; null where there is none, or it is hidden.
forms::Control* MarkerAtCursor(Form1& form);

/// Scrolls a marker into view, with a margin around it; a hidden marker is ignored.
void ScrollMarkerIntoView(Form1& form, const forms::Control& marker);

/// The selection is stored in the colours of the markers, and nowhere else.
enum class MarkerState {
  Plain,    // its own colour on ClrBlack
  Current,  // ClrBlack on ClrWhite
  Marked,   // ClrWhite on ClrGrey
};

/// From the background alone: a marker may have the background of a state and its own text colour.
MarkerState MarkerStateOf(const forms::Label& marker);
void Show(forms::Label& marker, MarkerState look);

/// The marker's own colour, which its Tag stores as decimal text; black for a Tag without a number.
forms::Color OwnColour(const forms::Label& marker);

/// The first character of a Tag's text. Both forms read as the same number.
enum class TagForm { WithBlank, WithoutBlank };

/// Gives a marker a colour of its own: its text colour and its Tag. The background stays.
void SetOwnColour(forms::Label& marker, forms::Color colour, TagForm text);

/// Gives a marker a colour of its own, and the plain state.
void PaintMarker(forms::Label& marker, forms::Color colour, TagForm text = TagForm::WithBlank);

/// Gives an Area's marker the colour and the Tag of its Region's marker. The background stays.
void CopyRegionColour(forms::Label& area, const forms::Label& region);

/// The corner of an Area's marker that is the Area's fill point; for a code that is no corner, the
/// top left one. The Area's number must be in the tables.
forms::Corner FillCorner(const Tables& tables, std::int16_t area);

/// Makes a corner of an Area's marker the fill point, and shows it in the caption. The marker must
/// exist.
void SetCorner(Form1& form, std::int16_t area, std::int16_t corner);

}  // namespace terramark
