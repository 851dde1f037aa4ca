#include "window/repeatsource.h"

namespace terramark::window {

std::unique_ptr<RepeatSource> ConnectRepeatSource() {
  return nullptr;
}

}  // namespace terramark::window
