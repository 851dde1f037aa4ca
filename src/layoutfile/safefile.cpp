#include "layoutfile/safefile.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <csignal>
#include <cstdio>
#include <utility>

#include "layoutfile/inplace.h"
#include "layoutfile/writeall.h"

namespace terramark {

namespace {

/// Links that may lead to one another before they are taken for a ring.
constexpr int MostLinks = 40;

/// The folder takes no new file, or does not let it take the name.
bool FolderRefuses(int error) {
  return error == EACCES || error == EPERM || error == EROFS || error == EBUSY;
}

/// Files without a name, or naming them later, may not be had here; a named file tells.
bool NeedsName(int error) {
  return FolderRefuses(error) || error == EOPNOTSUPP || error == ENOSYS || error == EISDIR ||
         error == EINVAL || error == ENOENT || error == EXDEV;
}

/// Where the user's limit on the size of files is reached, a call fails like any other instead of
/// killing the process.
class LimitFails {
 public:
  LimitFails() : before_(std::signal(SIGXFSZ, SIG_IGN)) {}
  LimitFails(const LimitFails&) = delete;
  ~LimitFails() { std::signal(SIGXFSZ, before_); }

 private:
  void (*before_)(int);
};

/// A new name is safe when the folder that holds it is on the disk too. Not every file system can
/// be asked for that, and the file itself is complete either way.
void FlushFolder(const std::filesystem::path& folder) {
  const auto open = [&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); };
  const forms::Descriptor opened(forms::Uninterrupted(open));
  if (opened.IsOpen()) Flush(opened.Number());
}

}  // namespace

SafeFile::SafeFile(std::filesystem::path target) : target_(std::move(target)) {
}

SafeFile::~SafeFile() {
  if (temporary_.empty()) return;
  forms::Uninterrupted([&] { return ::unlink(temporary_.c_str()); });
}

bool SafeFile::Open() {
  if (!FindTarget()) return false;
  refusal_ = OpenUnnamed();
  if (NeedsName(refusal_)) refusal_ = OpenNamed();
  return refusal_ == 0 || (old_ && FolderRefuses(refusal_));
}

bool SafeFile::Replace(std::string_view text) {
  const LimitFails whileWriting;
  int refusal = refusal_;
  if (refusal == 0) {
    if (!Complete(text)) return false;
    refusal = TakeTarget(text);
  }
  if (refusal == 0) {
    FlushFolder(Folder());
    return true;
  }
  if (!old_ || !FolderRefuses(refusal)) return false;
  const InPlace result = WriteInPlace(target_, text);
  if (result == InPlace::Damaged) {
    damaged_ = true;
    kept_ = std::exchange(temporary_, {});
    FlushFolder(Folder());
  }
  return result == InPlace::Written;
}

bool SafeFile::FindTarget() {
  for (int links = 0; links < MostLinks; ++links) {
    struct stat status {};
    if (forms::Uninterrupted([&] { return ::lstat(target_.c_str(), &status); }) != 0) {
      return errno == ENOENT;
    }
    if (!S_ISLNK(status.st_mode)) {
      const auto mayWrite = [&] {
        return ::faccessat(AT_FDCWD, target_.c_str(), W_OK, AT_EACCESS);
      };
      if (!S_ISREG(status.st_mode) || forms::Uninterrupted(mayWrite) != 0) return false;
      return old_.emplace().Read(target_, status);
    }
    std::array<char, PATH_MAX> text{};
    const ssize_t size =
        forms::Uninterrupted([&] { return ::readlink(target_.c_str(), text.data(), text.size()); });
    if (size <= 0 || size == PATH_MAX) return false;
    // A relative link starts at its own folder; an absolute one takes the whole path over.
    target_ = target_.parent_path() / std::string(text.data(), static_cast<std::size_t>(size));
  }
  return false;
}

bool SafeFile::Complete(std::string_view text) {
  if (old_ && !old_->GiveTo(file_.Number())) return false;
  return WriteAll(file_.Number(), text) == text.size() && Flush(file_.Number());
}

int SafeFile::OpenUnnamed() {
  return OpenTemporary(Folder(), O_TMPFILE);
}

int SafeFile::OpenNamed() {
  return MakeTemporary([&](const auto& name) { return OpenTemporary(name, O_CREAT | O_EXCL); });
}

int SafeFile::OpenTemporary(const std::filesystem::path& path, int flags) {
  const mode_t mode = old_ ? old_->StartMode() : 0666;
  const auto open = [&] { return ::open(path.c_str(), flags | O_WRONLY | O_CLOEXEC, mode); };
  const int number = forms::Uninterrupted(open);
  const int error = number >= 0 ? 0 : errno;
  file_ = forms::Descriptor(number);
  return error;
}

int SafeFile::TakeTarget(std::string_view text) {
  if (temporary_.empty()) {
    int error =
        old_ ? MakeTemporary([&](const auto& name) { return LinkTo(name); }) : LinkTo(target_);
    if (error == 0 && !old_) return 0;
    if (NeedsName(error)) {
      error = OpenNamed();
      if (error == 0 && !Complete(text)) error = EIO;
    }
    if (error != 0) return error;
  }
  file_.Close();
  const auto rename = [&] { return std::rename(temporary_.c_str(), target_.c_str()); };
  if (forms::Uninterrupted(rename) != 0) return errno;
  temporary_.clear();
  return 0;
}

int SafeFile::LinkTo(const std::filesystem::path& name) const {
  const std::string open = "/proc/self/fd/" + std::to_string(file_.Number());
  const auto link = [&] {
    return ::linkat(AT_FDCWD, open.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW);
  };
  return forms::Uninterrupted(link) == 0 ? 0 : errno;
}

template <typename Make>
int SafeFile::MakeTemporary(Make make) {
  // Short, so that it fits where the target's name does; the number keeps two editors apart, and
  // clear of what killed ones have left.
  const std::string stem = ".terramark-" + std::to_string(::getpid()) + "-";
  constexpr int Tries = 10000;
  int error = EEXIST;
  for (int i = 0; i < Tries && error == EEXIST; ++i) {
    const std::filesystem::path name = Folder() / (stem + std::to_string(i));
    error = make(name);
    if (error == 0) temporary_ = name;
  }
  return error;
}

std::filesystem::path SafeFile::Folder() const {
  return target_.has_parent_path() ? target_.parent_path() : std::filesystem::path(".");
}

}  // namespace terramark
