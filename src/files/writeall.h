// Writing a whole text to an open file.
#pragma once

#include <cstddef>
#include <string_view>

#include "files/descriptor.h"

namespace terramark::files {

/// How many bytes were written, and the system's number of the error that stopped it, 0 when all
/// are written.
struct Written {
  std::size_t Bytes = 0;
  int Error = 0;
};

/// Writes from the file's start.
Written WriteAll(FileNumber file, std::string_view text);

}  // namespace terramark::files
