// The command Load A .WMF Picture.
#pragma once

namespace terramark {

struct Form1;

/// The button "Load A .WMF Picture". The picture's folder becomes the current one, so that its name
/// without a folder finds it; that is used where a layout cannot hold the full path. A picture that
/// cannot be read, or whose name does not fit either, changes nothing and is reported in red.
void LoadMap_MouseUp(Form1& form);

}  // namespace terramark
