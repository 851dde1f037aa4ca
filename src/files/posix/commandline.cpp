#include "files/commandline.h"

#include <cstdio>

namespace terramark::files {

std::vector<std::string> Arguments(int argc, char** argv) {
  return {argv + 1, argv + argc};
}

bool Print(std::string_view text) {
  const bool taken = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  return std::fflush(stdout) == 0 && taken;
}

}  // namespace terramark::files
