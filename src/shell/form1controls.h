// The controls of the main window.
#pragma once

#include <span>

#include "shell/controltable.h"

namespace terramark {

struct Form1;

/// The control table of the main window.
std::span<const ControlRow<Form1>> Form1Controls();

}  // namespace terramark
