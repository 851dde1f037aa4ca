// Identifies a file and its state, to find out whether it has changed.
#pragma once

#include <compare>
#include <cstdint>

#include "files/descriptor.h"
#include "files/fault.h"

namespace terramark::files {

/// A time of the system's clock, since 1970.
struct Moment {
  std::int64_t Seconds = 0;
  std::int64_t Nanoseconds = 0;

  static Moment Now();
  auto operator<=>(const Moment&) const = default;
};

/// Equal versions mean the same file with the same bytes, provided that the earlier version was
/// settled.
struct FileVersion {
  std::uint64_t Device = 0;
  std::uint64_t Inode = 0;
  std::uint64_t Size = 0;
  Moment Modified;
  Moment Changed;

  /// Whether any change after `now`, a moment just before the version was taken, gives the file
  /// another version. The file times of a disk advance only with the kernel's ticks, on some disks
  /// only every two seconds: a file that has just changed can change again without a new time.
  bool SettledBy(const Moment& now) const;

  bool operator==(const FileVersion&) const = default;
};

/// The present version of an open file.
Result<FileVersion> VersionOf(FileNumber file);

}  // namespace terramark::files
