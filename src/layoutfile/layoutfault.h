// The reason why the bytes of a file are no Map Layout.
#pragma once

#include <string>

namespace terramark {

struct LayoutFault {
  /// The line, counted from 1, at which the reading stopped.
  int Line = 0;
  /// What was expected there.
  std::string Expected;
  /// Whether the file ended there too early.
  bool AtEnd = false;

  /// The reason for the user: a text to stand after a colon.
  std::string Description() const;
};

}  // namespace terramark
