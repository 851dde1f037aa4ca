#include "files/posix/permissions.h"

#include <sys/xattr.h>
#include <unistd.h>

#include "files/posix/calls.h"

namespace terramark::files {

namespace {

constexpr const char* AccessList = "system.posix_acl_access";
/// Read, write and execute; the other bits of a mode concern programs and folders.
constexpr mode_t ModeBits = 0777;

/// The user may not set it, or the file system does not support it; the file itself is sound.
bool CannotBeSet(int error) {
  return error == EPERM || error == EACCES || error == ENOTSUP || error == ENOSYS ||
         error == EINVAL;
}

/// Sets the access list; 0 or an errno. A new file may have inherited a list from its folder.
int SetList(int file, const std::string& list) {
  if (!list.empty()) {
    const auto set = [&] { return ::fsetxattr(file, AccessList, list.data(), list.size(), 0); };
    return ErrorOf(set);
  }
  const int error = ErrorOf([&] { return ::fremovexattr(file, AccessList); });
  return error == ENODATA ? 0 : error;
}

}  // namespace

int Permissions::Read(const std::filesystem::path& path, const struct stat& status) {
  owner_ = status.st_uid;
  group_ = status.st_gid;
  mode_ = status.st_mode & ModeBits;
  constexpr std::size_t MaxBytes = 65536;
  list_.resize(MaxBytes);
  const ssize_t size = Uninterrupted(
      [&] { return ::getxattr(path.c_str(), AccessList, list_.data(), list_.size()); });
  const int error = size >= 0 ? 0 : errno;
  list_.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
  listsKnown_ = error == 0 || error == ENODATA;
  return listsKnown_ || error == ENOTSUP || error == ENOSYS ? 0 : error;
}

bool Permissions::GroupCounts() const {
  // An access list may name this group, or give some users rights that it denies to others.
  return !list_.empty() || (mode_ >> 3U & 7U) != (mode_ & 7U);
}

Giving Permissions::GiveTo(int file) const {
  int error = ErrorOf([&] { return ::fchown(file, owner_, group_); });
  if (error != 0 && !CannotBeSet(error)) return {Given::Failed, error};
  // What cannot be set may have the right value already.
  struct stat now {};
  error = ErrorOf([&] { return ::fstat(file, &now); });
  if (error != 0) return {Given::Failed, error};
  if (now.st_uid != owner_ || (now.st_gid != group_ && GroupCounts())) return {Given::Less};
  error = listsKnown_ ? SetList(file, list_) : 0;
  if (error != 0 && !CannotBeSet(error)) return {Given::Failed, error};
  if (error != 0) return {Given::Less};
  error = ErrorOf([&] { return ::fchmod(file, mode_); });
  if (error == 0) return {Given::All};
  if (!CannotBeSet(error)) return {Given::Failed, error};
  return {(now.st_mode & ModeBits) == mode_ ? Given::All : Given::Less};
}

}  // namespace terramark::files
