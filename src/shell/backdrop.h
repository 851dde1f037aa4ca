// The backdrop picture in its box.
#pragma once

#include <string>

#include "forms/raster.h"

namespace terramark {

struct Form1;

/// Reads a picture for Picture1: a bitmap at its own size, a metafile drawn into the whole box. The
/// empty path gives the empty picture; null when the file cannot be read.
forms::Picture LoadPicture(Form1& form, const std::string& path);

/// Says in red that a picture cannot be read.
void ShowPictureFault(Form1& form, const std::string& path);

}  // namespace terramark
