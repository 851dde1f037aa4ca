// Ends the program after an error that only a mistake in the editor's own tables and code can
// cause.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

namespace terramark::forms {

/// Prints the error to standard error and aborts: going on would be undefined.
[[noreturn]] inline void FatalError(const std::string& what) {
  std::fprintf(stderr, "terramark: %s\n", what.c_str());
  std::abort();
}

}  // namespace terramark::forms
