// Writing a whole text to an open file, and to the disk.
#pragma once

#include <cstddef>
#include <string_view>

namespace terramark::files {

/// How many bytes were written, and the errno that stopped it, 0 when all are written.
struct Written {
  std::size_t Bytes = 0;
  int Error = 0;
};

/// Writes from the file's start.
Written WriteAll(int file, std::string_view text);

/// 0 when all of the file is on the disk, or an errno.
int Flush(int file);

}  // namespace terramark::files
