// A file opened for reading that is sure to be a plain one: reading it ends, and waits for nobody.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>

#include "forms/descriptor.h"
#include "forms/fault.h"
#include "forms/fileversion.h"

namespace terramark::forms {

/// Takes no folder, pipe or device, nor what the kernel makes up as it is read, and does not wait
/// for any of them. A path with a NUL names no file.
class RegularFile {
 public:
  explicit RegularFile(const std::filesystem::path& path);

  /// Whether the path names such a file and it may be read.
  bool IsOpen() const { return file_.IsOpen(); }
  /// Why it is not open, or why a read or the like has failed since; empty when neither is so. A
  /// file that merely ends early is no such failure.
  const Fault& Why() const { return why_; }
  /// Bytes at the time of opening; 0 when it is not open.
  std::uintmax_t Size() const { return size_; }

  /// The file as it is now; nothing when it is not open.
  std::optional<FileVersion> Version() const;

  /// From the beginning up to the size, and at most so many bytes. Nothing when it is not open or a
  /// read fails: a disk's fault does not look like a short file.
  std::optional<std::string> Read(std::size_t most) const;
  /// Fills the room with the bytes from so many after the beginning. False when the file ends
  /// before the room is full, is not open or a read fails; the room may be half filled then.
  bool ReadAt(std::uintmax_t offset, std::span<char> room) const;

 private:
  /// Why it is none of those that are taken; empty when it is open.
  Fault Open(const std::filesystem::path& path);
  /// Finds out those that only look like a plain file.
  Fault TakeSize();
  /// Keeps why a call of the system has failed just now.
  void Failed() const;

  Descriptor file_;
  std::uintmax_t size_ = 0;
  mutable Fault why_;
};

}  // namespace terramark::forms
