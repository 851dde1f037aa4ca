// The selection: what is current and what is marked. The marks live in the colours of the markers
// and nowhere else.
#pragma once

#include <cstdint>

namespace terramark {

struct Form1;

/// Removes every mark, makes nothing current and empties the inspector and the message bar.
void ClearSelection(Form1& form);

/// With toggle 0 the Area becomes current: its neighbours are marked and the inspector shows it.
/// Any other toggle flips the mark on its marker and leaves what is current as it is. A number
/// without a marker changes nothing.
void SelectArea(Form1& form, std::int16_t area, std::int16_t toggle);

/// The Region becomes current: its Areas are marked and the inspector shows it. A number without a
/// marker changes nothing.
void SelectRegion(Form1& form, std::int16_t region);

/// Marks the Areas of the current Region and gives their number. With no current Region, count
/// stays untouched.
void HiliteRegionAreas(Form1& form, std::int16_t& count);

/// Flips the marks of the neighbours of the Area that looks current, and gives the number of its
/// neighbours, those without a marker included. With no current Area or none that looks it, count
/// stays untouched.
void HiliteAreaLinks(Form1& form, std::int16_t& count);

}  // namespace terramark
