// The command Load a Map Layout.
#pragma once

namespace terramark {

struct Form1;

/// The button "Load a Map Layout". The layout's folder becomes the current one. A file that cannot
/// be opened changes nothing and is reported in red.
void LoadMpa_MouseUp(Form1& form);

}  // namespace terramark
