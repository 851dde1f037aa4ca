// The backdrop picture in its box.
#pragma once

#include <string>

#include "forms/fault.h"

namespace terramark {

struct Form1;

/// Reads a picture and puts it into Picture1: a bitmap at its own size, a metafile drawn into the
/// whole box; the empty path empties the box. A red text about an earlier picture or its name goes
/// off the bar. Gives why the file cannot be read, the memory among the reasons: nothing has
/// changed then; empty when it shows.
forms::Fault ShowPicture(Form1& form, const std::string& path);

/// Likewise another picture than the one that was shown, which begins at its actual size.
forms::Fault ShowNewPicture(Form1& form, const std::string& path);

/// Says in red that a picture cannot be read, and why.
void ShowPictureFault(Form1& form, const std::string& path, const forms::Fault& fault);

/// Says in red that a picture's name cannot stand in a Map Layout.
void ShowNameFault(Form1& form, const std::string& name);

}  // namespace terramark
