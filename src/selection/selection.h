// The selection: the current item and the marks. The marks are stored in the colours of the markers
// and nowhere else.
#pragma once

#include <cstdint>

namespace terramark {

struct Form1;

/// Removes every mark, makes nothing current and empties the inspector and the message bar.
void ClearSelection(Form1& form);

/// With toggle 0 the Area becomes current: its neighbours are marked, and the inspector shows it.
/// With any other toggle the mark on its marker is flipped, and the current item stays. A number
/// without a marker changes nothing.
void SelectArea(Form1& form, std::int16_t area, std::int16_t toggle);

/// Makes the Region current: its Areas are marked, and the inspector shows it. A number without a
/// marker changes nothing.
void SelectRegion(Form1& form, std::int16_t region);

/// Marks the Areas of the current Region and sets `count` to their number. Without a current Region
/// `count` is unchanged.
void HiliteRegionAreas(Form1& form, std::int16_t& count);

/// Flips the marks of the neighbours of the Area whose marker shows it as current, and sets `count`
/// to the number of its neighbours, including those without a marker. Without such an Area `count`
/// is unchanged.
void HiliteAreaLinks(Form1& form, std::int16_t& count);

}  // namespace terramark
