// Questions before something that cannot be undone.
#pragma once

#include <string>

namespace terramark {

struct Form1;

/// Asks in a box with Yes and No. Only Yes gives true; closing the box in any other way means No.
bool Confirm(Form1& form, const std::string& question);

}  // namespace terramark
