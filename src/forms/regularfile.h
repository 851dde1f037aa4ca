// A file opened for reading that is sure to be a plain one: reading it ends, and waits for nobody.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>

#include "forms/descriptor.h"
#include "forms/fileversion.h"

namespace terramark::forms {

/// Takes no folder, pipe or device, nor what the kernel makes up as it is read, and does not wait
/// for any of them. A path with a NUL names no file.
class RegularFile {
 public:
  explicit RegularFile(const std::filesystem::path& path);

  /// Whether the path names such a file and it may be read.
  bool IsOpen() const { return file_.IsOpen(); }
  /// Bytes at the time of opening; 0 when it is not open.
  std::uintmax_t Size() const { return size_; }

  /// The file as it is now; nothing when it is not open.
  std::optional<FileVersion> Version() const { return VersionOf(file_.Number()); }

  /// From the beginning up to the size, and at most so many bytes. Nothing when it is not open or a
  /// read fails: a disk's fault does not look like a short file.
  std::optional<std::string> Read(std::size_t most) const;
  /// Fills the room with the bytes from so many after the beginning. False when the file ends
  /// before the room is full, is not open or a read fails; the room may be half filled then.
  bool ReadAt(std::uintmax_t offset, std::span<char> room) const;

 private:
  /// False for what only looks like a plain file.
  bool TakeSize();

  Descriptor file_;
  std::uintmax_t size_ = 0;
};

}  // namespace terramark::forms
