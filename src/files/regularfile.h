// A file opened for reading that is certain to be a regular one: reading it ends and never blocks.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <utility>

#include "files/descriptor.h"
#include "files/fault.h"
#include "files/fileversion.h"
#include "files/openfile.h"

namespace terramark::files {

/// Refuses a folder, a pipe, a device and a file that the kernel generates, without waiting for any
/// of them. A path with a NUL names no file.
class RegularFile {
 public:
  static Result<RegularFile> Open(const std::filesystem::path& path);

  /// Bytes at the time of opening.
  std::uintmax_t Size() const { return opened_.Size; }

  /// The file's version now.
  Result<FileVersion> Version() const { return VersionOf(opened_.File.Number()); }

  /// The bytes from the start up to Size(), at most `most`. Fewer when another program has
  /// truncated the file meanwhile; a read that fails gives a fault, never a short result.
  Result<std::string> Read(std::size_t most) const;
  /// Reads from an offset into the span. Returns how many bytes were read: fewer than the span
  /// holds where the file ends.
  Result<std::size_t> ReadAt(std::uintmax_t offset, std::span<char> room) const;

 private:
  explicit RegularFile(OpenedFile opened) : opened_(std::move(opened)) {}

  OpenedFile opened_;
};

/// Opens such a file and returns its bytes from the start, at most `most`.
Result<std::string> ReadRegularFile(const std::filesystem::path& path, std::size_t most);

/// Whether such a file can be opened where another file names it: a relative name begins in the
/// folder of that file.
bool CanOpenNamedFile(const std::filesystem::path& namedBy, const std::filesystem::path& name);

}  // namespace terramark::files
