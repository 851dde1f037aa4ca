// Writing a whole text to an open file, and to the disk.
#pragma once

#include <cstddef>
#include <string_view>

namespace terramark {

/// Writes from the file's start on; how many bytes have been taken, all of them unless it failed,
/// and then errno tells why.
std::size_t WriteAll(int file, std::string_view text);

/// Whether all of the file is on the disk; if not, errno tells why.
bool Flush(int file);

}  // namespace terramark
