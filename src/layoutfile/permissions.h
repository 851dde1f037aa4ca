// Who may do what with a file, for the file that is to replace it.
#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <string>

namespace terramark {

/// Owner, group, mode and access list of a file. A new file that cannot be given all of them gets
/// what is left of the mode: nobody gains a right that the old file denied.
class Permissions {
 public:
  /// Of the file whose status is given; false when its access list cannot be read.
  bool Read(const std::filesystem::path& path, const struct stat& status);

  /// The mode to create the new file with, safe whatever its owner and group turn out to be.
  mode_t StartMode() const { return ModeFor(false, false); }

  /// Gives them to a file that was created with StartMode, as far as the user and the file system
  /// can; false on any other failure.
  bool GiveTo(int file) const;

 private:
  mode_t ModeFor(bool sameOwner, bool sameGroup) const;

  uid_t owner_ = 0;
  gid_t group_ = 0;
  mode_t mode_ = 0;
  bool listsKnown_ = false;  // whether the file system has access lists
  std::string list_;         // as the system stores it; empty when the mode says all
};

}  // namespace terramark
