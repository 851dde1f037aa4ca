// Which file stands behind a name, and in which state: tells whether it has changed since.
#pragma once

#include <compare>
#include <cstdint>

#include "files/fault.h"

namespace terramark::files {

/// A time of the system's clock, since 1970.
struct Moment {
  std::int64_t Seconds = 0;
  std::int64_t Nanoseconds = 0;

  static Moment Now();
  auto operator<=>(const Moment&) const = default;
};

/// Equal versions are one file with the same bytes, provided that the earlier was settled.
struct FileVersion {
  std::uint64_t Device = 0;
  std::uint64_t Inode = 0;
  std::uint64_t Size = 0;
  Moment Modified;
  Moment Changed;

  /// Whether any change after `now`, a moment just before the version was taken, gives the file
  /// another version. The times that a disk keeps stand still between the kernel's ticks, or on
  /// some for two whole seconds: a file that has just been changed can change again within the same
  /// time.
  bool SettledBy(const Moment& now) const;

  bool operator==(const FileVersion&) const = default;
};

/// The version as of now of an open file.
Result<FileVersion> VersionOf(int file);

}  // namespace terramark::files
