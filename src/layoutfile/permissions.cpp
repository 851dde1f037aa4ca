#include "layoutfile/permissions.h"

#include <sys/xattr.h>
#include <unistd.h>

#include "forms/descriptor.h"

namespace terramark {

namespace {

constexpr const char* AccessList = "system.posix_acl_access";
/// Reading, writing and executing; of the rest of a mode a layout has no use.
constexpr mode_t ModeBits = 0777;

/// The user may not, or the file system has no such thing; the file itself is sound.
bool CannotBeSet(int error) {
  return error == EPERM || error == EACCES || error == ENOTSUP || error == ENOSYS ||
         error == EINVAL;
}

/// 0, or why the file has another list than this one. A new file may have its folder's.
int SetList(int file, const std::string& list) {
  if (!list.empty()) {
    const auto set = [&] { return ::fsetxattr(file, AccessList, list.data(), list.size(), 0); };
    return forms::Uninterrupted(set) == 0 ? 0 : errno;
  }
  if (forms::Uninterrupted([&] { return ::fremovexattr(file, AccessList); }) == 0) return 0;
  return errno == ENODATA ? 0 : errno;
}

}  // namespace

bool Permissions::Read(const std::filesystem::path& path, const struct stat& status) {
  owner_ = status.st_uid;
  group_ = status.st_gid;
  mode_ = status.st_mode & ModeBits;
  constexpr std::size_t MostBytes = 65536;
  list_.resize(MostBytes);
  const ssize_t size = forms::Uninterrupted(
      [&] { return ::getxattr(path.c_str(), AccessList, list_.data(), list_.size()); });
  const int error = size >= 0 ? 0 : errno;
  list_.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
  listsKnown_ = error == 0 || error == ENODATA;
  errno = error;
  return listsKnown_ || error == ENOTSUP || error == ENOSYS;
}

bool Permissions::GroupCounts() const {
  // A list speaks of this group, and may deny to some what it allows to others.
  return !list_.empty() || (mode_ >> 3U & 7U) != (mode_ & 7U);
}

Given Permissions::GiveTo(int file) const {
  const auto own = [&] { return ::fchown(file, owner_, group_); };
  if (forms::Uninterrupted(own) != 0 && !CannotBeSet(errno)) return Given::Failed;
  // Where they cannot be set they may be right all the same.
  struct stat now {};
  if (forms::Uninterrupted([&] { return ::fstat(file, &now); }) != 0) return Given::Failed;
  if (now.st_uid != owner_ || (now.st_gid != group_ && GroupCounts())) return Given::Less;
  if (listsKnown_) {
    errno = SetList(file, list_);
    if (errno != 0) return CannotBeSet(errno) ? Given::Less : Given::Failed;
  }
  if (forms::Uninterrupted([&] { return ::fchmod(file, mode_); }) == 0) return Given::All;
  if (!CannotBeSet(errno)) return Given::Failed;
  return (now.st_mode & ModeBits) == mode_ ? Given::All : Given::Less;
}

}  // namespace terramark
