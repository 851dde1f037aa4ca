// The end for what only a fault in the editor's own tables and code can bring about.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

namespace terramark::forms {

/// Says on the error output what does not hold, and aborts. Going on would be undefined.
[[noreturn]] inline void FatalError(const std::string& what) {
  std::fprintf(stderr, "terramark: %s\n", what.c_str());
  std::abort();
}

}  // namespace terramark::forms
