// The permissions of a file, for the file that is to replace it.
#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <string>

namespace terramark::files {

/// Whether a new file has received the permissions of the old one.
enum class Given {
  All,     // who could read or write the old file can the new one, and nobody else
  Less,    // somebody would lose a right; nobody has gained one
  Failed,  // neither is sure: the system has refused something else
};

/// The outcome, and the errno of a failure.
struct Giving {
  Given Rights;
  int Error = 0;
};

/// Owner, group, mode and access list of a file.
class Permissions {
 public:
  /// The mode for creating the new file: safe whatever its owner and group will be.
  static constexpr mode_t StartMode = 0600;

  /// Reads those of the file with the given status; 0, or an errno when its access list cannot be
  /// read.
  int Read(const std::filesystem::path& path, const struct stat& status);

  /// Gives them to a file that was created with StartMode, as far as the user and the file system
  /// can. A different owner is always Less. A different group is not Less where the group had the
  /// same rights as all others: then nobody loses or gains a right.
  Giving GiveTo(int file) const;

 private:
  bool GroupCounts() const;

  uid_t owner_ = 0;
  gid_t group_ = 0;
  mode_t mode_ = 0;
  bool listsKnown_ = false;  // whether the file system has access lists
  std::string list_;         // as the system stores it; empty when the mode says all
};

}  // namespace terramark::files
