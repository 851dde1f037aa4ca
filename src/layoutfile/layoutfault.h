// Why the bytes of a file are no Map Layout.
#pragma once

#include <string>

namespace terramark {

struct LayoutFault {
  /// The line, from 1, at which the reading stopped.
  int Line = 0;
  /// What should stand there.
  std::string Expected;
  /// Whether nothing stands there: the file ends too early.
  bool AtEnd = false;

  /// For the user: the reason as words that stand behind a colon.
  std::string Description() const;
};

}  // namespace terramark
