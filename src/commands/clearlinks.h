// Removing the links of an Area or a Region.
#pragma once

namespace terramark {

struct Form1;

/// The button "Clear all Links". The current Area loses its neighbours on both sides and its
/// Region; the current Region loses its Areas, its name and its colour. Needs a mark.
void ClearLink_MouseUp(Form1& form);

}  // namespace terramark
