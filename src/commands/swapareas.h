// Two Areas change places on the map.
#pragma once

namespace terramark {

struct Form1;

/// The button "Swap Territories": the two marked Areas with the lowest numbers exchange place,
/// links, Region and fill corner; number, name and card symbol stay. Every link of the map still
/// joins the same two places. Reports it when there are not exactly two marked Areas.
void SwapTer_MouseUp(Form1& form);

}  // namespace terramark
