// System calls that are repeated when a signal interrupts them.
#pragma once

#include <cerrno>

#include "files/descriptor.h"

namespace terramark::files {

/// Repeats a call of the system until no signal interrupts it. After a failure errno has the
/// reason.
template <typename Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

/// 0, or the errno with which the call failed.
template <typename Call>
int ErrorOf(Call call) {
  return Uninterrupted(call) < 0 ? errno : 0;
}

/// A file's number as the system's calls take it.
inline int Native(FileNumber file) {
  return static_cast<int>(file);
}

}  // namespace terramark::files
