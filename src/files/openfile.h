// What the system does with an open file, one call each; implemented in posix/ and windows/.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>

#include "files/descriptor.h"
#include "files/fault.h"

namespace terramark::files {

struct OpenedFile {
  Descriptor File;
  std::uintmax_t Size = 0;  // in bytes
};

/// Opens a regular file for reading, and refuses all else without waiting for it. Other programs
/// may read, write, rename and delete the file meanwhile.
Result<OpenedFile> OpenToRead(const std::filesystem::path& path);

/// Opens a regular file for reading and writing. Refuses a symbolic link where the system can.
Result<OpenedFile> OpenToOverwrite(const std::filesystem::path& path);

/// Reads bytes from an offset on, at least one unless the file ends there; returns how many.
Result<std::size_t> ReadSome(FileNumber file, std::uintmax_t offset, std::span<char> room);

/// Writes bytes from an offset on; returns how many. 0 is a failure without a reason.
Result<std::size_t> WriteSome(FileNumber file, std::uintmax_t offset, std::string_view text);

// These return 0 or the system's number of an error.

/// Sets the file's size.
int Truncate(FileNumber file, std::uintmax_t size);

/// Has the disk keep space free for so many bytes. The file's size stays. 0 also where the file
/// system cannot.
int Reserve(FileNumber file, std::uintmax_t size);

/// Returns when all of the file is on the disk, as far as the disk can be asked for it.
int Flush(FileNumber file);

}  // namespace terramark::files
