// What a program without a window is given, and what it says.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace terramark::files {

/// The words of the command line behind the program's name, those of files as PathOf takes them.
/// On Windows, where the shell leaves patterns as they are, each has become the names that it fits.
std::vector<std::string> Arguments(int argc, char** argv);

/// Writes a text in UTF-8 to the standard output, converted where a terminal wants another
/// encoding. False when not all of it could be written.
bool Print(std::string_view text);

}  // namespace terramark::files
