#include "files/pathof.h"

#include "files/windows/unicode.h"

namespace terramark::files {

std::filesystem::path PathOf(const std::string& name) {
  return ToUtf16(name);
}

}  // namespace terramark::files
