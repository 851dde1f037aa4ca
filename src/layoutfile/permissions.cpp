#include "layoutfile/permissions.h"

#include <sys/xattr.h>
#include <unistd.h>

#include "forms/descriptor.h"

namespace terramark {

namespace {

constexpr const char* AccessList = "system.posix_acl_access";

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
  mode_ = status.st_mode & 0777U;
  constexpr std::size_t MostBytes = 65536;
  list_.resize(MostBytes);
  const ssize_t size = forms::Uninterrupted(
      [&] { return ::getxattr(path.c_str(), AccessList, list_.data(), list_.size()); });
  const int error = size >= 0 ? 0 : errno;
  list_.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
  listsKnown_ = error == 0 || error == ENODATA;
  return listsKnown_ || error == ENOTSUP || error == ENOSYS;
}

mode_t Permissions::ModeFor(bool sameOwner, bool sameGroup) const {
  const mode_t user = mode_ >> 6U & 7U;
  mode_t group = mode_ >> 3U & 7U;
  mode_t other = mode_ & 7U;
  // A list speaks of this owner and this group, and may deny to some what it allows to others.
  if (!list_.empty() && !(sameOwner && sameGroup)) group = other = 0;
  // The old owner is one of the group or of the others now.
  if (!sameOwner) {
    group &= user;
    other &= user;
  }
  // The old group's members are among the others, and some of the others in the new group.
  if (!sameGroup) group = other = group & other;
  return user << 6U | group << 3U | other;
}

bool Permissions::GiveTo(int file) const {
  if (forms::Uninterrupted([&] { return ::fchown(file, owner_, group_); }) != 0) {
    if (!CannotBeSet(errno)) return false;
    // The old file is another's; its group at least may be one of the user's own.
    const auto regroup = [&] { return ::fchown(file, static_cast<uid_t>(-1), group_); };
    if (forms::Uninterrupted(regroup) != 0 && !CannotBeSet(errno)) return false;
  }
  struct stat now {};
  if (forms::Uninterrupted([&] { return ::fstat(file, &now); }) != 0) return false;
  const bool sameOwner = now.st_uid == owner_;
  const bool sameGroup = now.st_gid == group_;
  // With another list than the old one the mode that is safe for all has to do.
  if (listsKnown_) {
    const int error = SetList(file, sameOwner && sameGroup ? list_ : std::string());
    if (error != 0) return CannotBeSet(error);
  }
  const mode_t mode = ModeFor(sameOwner, sameGroup);
  return forms::Uninterrupted([&] { return ::fchmod(file, mode); }) == 0 || CannotBeSet(errno);
}

}  // namespace terramark
