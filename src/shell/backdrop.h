// The backdrop picture in its box.
#pragma once

#include <string>

namespace terramark {

struct Form1;

/// Reads a picture and puts it into Picture1: a bitmap at its own size, a metafile drawn into the
/// whole box; the empty path empties the box. A red text about an earlier picture or its name goes
/// off the bar. False when the file cannot be read, or the memory does not reach for it: nothing
/// has changed then.
bool ShowPicture(Form1& form, const std::string& path);

/// Likewise another picture than the one that was shown, which begins at its actual size.
bool ShowNewPicture(Form1& form, const std::string& path);

/// Says in red that a picture cannot be read.
void ShowPictureFault(Form1& form, const std::string& path);

/// Says in red that a picture's name cannot stand in a Map Layout.
void ShowNameFault(Form1& form, const std::string& name);

}  // namespace terramark
