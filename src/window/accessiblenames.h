// What parts of the windows are called by assistive tools, where their widgets do not say it.
#pragma once

#include <QString>

#include "forms/controls.h"

namespace terramark::window {

/// A label's own name, and then its caption: "Areas 42".
QString AccessibleText(const forms::Label& label);

}  // namespace terramark::window
