#include "files/pathof.h"

namespace terramark::files {

std::filesystem::path PathOf(const std::string& name) {
  return name;
}

}  // namespace terramark::files
