// Reports in the message bar what cannot be done with a file.
#pragma once

#include <string>

namespace terramark {

struct Form1;

/// Shows in red what cannot be done, the path of the file, and the rest, in this order. If the bar
/// is too narrow the path is shortened in its middle, so that the rest and, as far as possible, the
/// file's name stay visible.
void ShowFileFault(Form1& form, const std::string& what, const std::string& path,
                   const std::string& rest);

}  // namespace terramark
