// A file opened for reading that is sure to be a plain one: reading it ends, and waits for nobody.
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

namespace terramark::files {

/// Takes no folder, pipe or device, nor what the kernel makes up as it is read, and does not wait
/// for any of them. A path with a NUL names no file.
class RegularFile {
 public:
  static Result<RegularFile> Open(const std::filesystem::path& path);

  /// Bytes at the time of opening.
  std::uintmax_t Size() const { return size_; }

  /// The file as it is now.
  Result<FileVersion> Version() const { return VersionOf(file_.Number()); }

  /// From the beginning up to the size, and at most so many bytes. Fewer when another program has
  /// cut the file short in the meantime; a read that fails is a fault, never a short result.
  Result<std::string> Read(std::size_t most) const;
  /// Fills the room with the bytes from so many after the beginning; how many there were, fewer
  /// than the room where the file ends.
  Result<std::size_t> ReadAt(std::uintmax_t offset, std::span<char> room) const;

 private:
  explicit RegularFile(Descriptor file) : file_(std::move(file)) {}
  /// Finds out those that only look like a plain file.
  Result<> TakeSize();

  Descriptor file_;
  std::uintmax_t size_ = 0;
};

/// The bytes of such a file from its beginning, at most so many.
Result<std::string> ReadRegularFile(const std::filesystem::path& path, std::size_t most);

}  // namespace terramark::files
