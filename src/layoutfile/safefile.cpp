#include "layoutfile/safefile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>

namespace terramark {

namespace {

namespace fs = std::filesystem;

/// Links that may lead to one another before they are taken for a ring.
constexpr int MostLinks = 40;

fs::path FollowLinks(fs::path path) {
  std::error_code fault;
  for (int links = 0; links < MostLinks && fs::is_symlink(path, fault); ++links) {
    // A relative link starts at its own folder; an absolute one takes the whole path over.
    path = path.parent_path() / fs::read_symlink(path, fault);
  }
  return path;
}

bool MayWrite(const fs::path& path) {
  return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

bool WriteAll(int file, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = ::write(file, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    text.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

/// The new file gets the old one's permissions, and its owner and group where that is allowed.
bool TakeOverPermissions(const fs::path& from, int to) {
  struct stat old {};
  if (::stat(from.c_str(), &old) != 0) return false;
  if (::fchown(to, old.st_uid, old.st_gid) != 0) {
    // The old file is another's; its group at least may be one of the user's own.
    [[maybe_unused]] const int grouped = ::fchown(to, static_cast<uid_t>(-1), old.st_gid);
  }
  return ::fchmod(to, old.st_mode & 07777U) == 0;
}

/// A new name is safe when the folder that holds it is on the disk too. Not every file system can
/// be asked for that, and the file itself is complete either way.
void FlushFolder(const fs::path& file) {
  const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
  const int opened = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (opened < 0) return;
  ::fsync(opened);
  ::close(opened);
}

bool Overwrite(int file, std::string_view text) {
  struct stat old {};
  if (::fstat(file, &old) != 0) return false;
  const auto size = static_cast<off_t>(text.size());
  // Room first: a full disk shows before a byte of the old text is gone.
  if (size > old.st_size && ::posix_fallocate(file, old.st_size, size - old.st_size) != 0) {
    [[maybe_unused]] const int restored = ::ftruncate(file, old.st_size);
    return false;
  }
  return WriteAll(file, text) && ::ftruncate(file, size) == 0 && ::fsync(file) == 0;
}

}  // namespace

SafeFile::SafeFile(const fs::path& target) : target_(FollowLinks(target)) {
}

SafeFile::~SafeFile() {
  if (file_ >= 0) ::close(file_);
  if (!temporary_.empty()) ::unlink(temporary_.c_str());
}

bool SafeFile::Open() {
  std::error_code fault;
  // Links that lead to one another name no file.
  if (fs::is_symlink(target_, fault)) return false;
  const fs::file_status status = fs::status(target_, fault);
  targetExists_ = fs::exists(status);
  if (targetExists_ && !(fs::is_regular_file(status) && MayWrite(target_))) {
    return false;
  }
  return OpenTemporary() || targetExists_;
}

bool SafeFile::OpenTemporary() {
  // Short, so that it fits where the target's name does; the number keeps two editors apart.
  const std::string stem = ".terramark-" + std::to_string(::getpid()) + "-";
  constexpr int Tries = 100;
  for (int i = 0; i < Tries && file_ < 0; ++i) {
    temporary_ = target_.parent_path() / (stem + std::to_string(i));
    file_ = ::open(temporary_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file_ < 0 && errno != EEXIST) break;
  }
  if (file_ < 0) temporary_.clear();
  return file_ >= 0;
}

bool SafeFile::Replace(std::string_view text) {
  if (file_ >= 0) {
    if (!CompleteTemporary(text)) return false;
    if (::rename(temporary_.c_str(), target_.c_str()) == 0) {
      temporary_.clear();
      FlushFolder(target_);
      return true;
    }
  }
  return targetExists_ && WriteInPlace(text);
}

bool SafeFile::CompleteTemporary(std::string_view text) {
  if (targetExists_ && !TakeOverPermissions(target_, file_)) return false;
  if (!WriteAll(file_, text) || ::fsync(file_) != 0) return false;
  const int closed = ::close(file_);
  file_ = -1;
  return closed == 0;
}

bool SafeFile::WriteInPlace(std::string_view text) {
  const int file = ::open(target_.c_str(), O_WRONLY | O_CLOEXEC);
  if (file < 0) return false;
  const bool written = Overwrite(file, text);
  return ::close(file) == 0 && written;
}

}  // namespace terramark
