// What cannot be done with a file, told in the message bar.
#pragma once

#include <string>

namespace terramark {

struct Form1;

/// Says in red what cannot be done, the path of the file, and the rest, one behind the other. Where
/// the bar has no room for all of it, the path is cut in its middle: the file's name and the rest
/// stand.
void ShowFileFault(Form1& form, const std::string& what, const std::string& path,
                   const std::string& rest);

}  // namespace terramark
