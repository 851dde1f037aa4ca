// Reading from an open file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "files/fault.h"

namespace terramark::files {

/// Fills the room with the file's bytes from so many bytes after its start; how many there were,
/// fewer than the room where the file ends.
Result<std::size_t> ReadInto(int file, std::uintmax_t offset, std::span<char> room);

/// The file's bytes from its start on, at most so many, and fewer where it ends. A read that fails
/// is a fault, never a short result.
Result<std::string> ReadBytes(int file, std::size_t most);

}  // namespace terramark::files
