// The program's icon.
#pragma once

#include "forms/raster.h"

namespace terramark {

/// 32 x 32 pixels in colours of the 16-colour palette: four territories and a frame.
forms::Picture ProgramIcon();

}  // namespace terramark
