// The two bars, the counts and the help viewer: what the editor says to the user.
#pragma once

#include <cstdint>
#include <string>

#include "forms/color.h"

namespace terramark {

struct Form1;

/// Reports in the message bar on a background: a fault on ClrRed in white, anything else in black.
/// The empty text on ClrGreen blanks the bar.
void ShowMessage(Form1& form, const std::string& text, forms::Color colour);

/// Describes in the help bar what is under the pointer.
void ShowHelpbar(Form1& form, const std::string& text);

/// Updates the Countx labels from AreaCount and RegionCount. A label whose text already reads as
/// its count is unchanged, so an empty one stays empty at 0.
void UpdateCounts(Form1& form);
/// Updates one of them.
void UpdateAreaCount(Form1& form);
void UpdateRegionCount(Form1& form);

/// Opens the help viewer on a topic of the help. A missing viewer or topic is not reported.
void ShowHelpTopic(Form1& form, std::int16_t topic);

}  // namespace terramark
