// Reading from an open file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "files/descriptor.h"
#include "files/fault.h"

namespace terramark::files {

/// Reads the file's bytes from an offset into the span. Returns how many were read: fewer than the
/// span holds where the file ends.
Result<std::size_t> ReadInto(FileNumber file, std::uintmax_t offset, std::span<char> room);

/// The file's bytes from its start, at most `most` of them, fewer where it ends. A read that fails
/// gives a fault, never a short result.
Result<std::string> ReadBytes(FileNumber file, std::size_t most);

}  // namespace terramark::files
