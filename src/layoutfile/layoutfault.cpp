#include "layoutfile/layoutfault.h"

namespace terramark {

std::string LayoutFault::Description() const {
  return (AtEnd ? "the file ends, expected " : "expected ") + Expected;
}

}  // namespace terramark
