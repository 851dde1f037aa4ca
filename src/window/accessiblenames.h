// The names of parts of the windows for assistive tools, where the widgets have none.
#pragma once

#include <QString>

#include "forms/controls.h"

namespace terramark::window {

/// The label's accessible name, followed by its caption: "Areas 42".
QString AccessibleText(const forms::Label& label);

}  // namespace terramark::window
