// The command Load A .WMF Picture.
#pragma once

namespace terramark {

struct Form1;

/// The button "Load A .WMF Picture". The picture's folder becomes the current one, so that the bare
/// name, which is taken where a layout cannot hold the full one, finds it. A picture that cannot be
/// read, or whose bare name does not fit either, changes nothing and is said in red.
void LoadMap_MouseUp(Form1& form);

}  // namespace terramark
