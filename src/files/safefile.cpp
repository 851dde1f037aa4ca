#include "files/safefile.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <csignal>
#include <cstdio>
#include <utility>

#include "files/inplace.h"
#include "files/writeall.h"

namespace terramark::files {

namespace {

/// After so many symbolic links in a chain they are taken for a loop.
constexpr int MaxLinks = 40;
/// The mode of a new file; the umask and the folder limit it.
constexpr mode_t NewMode = 0666;

/// The folder accepts no new file, or does not allow the rename.
bool FolderRefuses(int error) {
  return error == EACCES || error == EPERM || error == EROFS || error == EBUSY;
}

/// This system has no unnamed files, cannot name them later, or cannot rename without replacing.
/// The next, simpler way then fails with the real reason.
bool NeedsSimplerWay(int error) {
  return FolderRefuses(error) || error == EOPNOTSUPP || error == ENOSYS || error == EISDIR ||
         error == EINVAL || error == ENOENT || error == EXDEV || error == EMLINK;
}

/// At the user's limit on the size of files a call fails with an errno, instead of a signal that
/// ends the process.
class LimitFails {
 public:
  LimitFails() : before_(std::signal(SIGXFSZ, SIG_IGN)) {}
  LimitFails(const LimitFails&) = delete;
  ~LimitFails() { std::signal(SIGXFSZ, before_); }

 private:
  void (*before_)(int);
};

/// A new name is safe only when the folder that contains it is on the disk too. Not every file
/// system can flush a folder, and the file itself is complete either way.
void FlushFolder(const std::filesystem::path& folder) {
  const auto open = [&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); };
  const Descriptor opened(Uninterrupted(open));
  if (opened.IsOpen()) Flush(opened.Number());
}

}  // namespace

SafeFile::SafeFile(std::filesystem::path target) : target_(std::move(target)) {
}

SafeFile::~SafeFile() {
  if (temporary_.empty()) return;
  Uninterrupted([&] { return ::unlink(temporary_.c_str()); });
}

Result<> SafeFile::Open() {
  if (auto found = FindTarget(); !found) return found;
  refusal_ = OpenUnnamed();
  if (NeedsSimplerWay(refusal_)) refusal_ = OpenNamed();
  const bool able = refusal_ == 0 || (old_ && FolderRefuses(refusal_));
  if (!able) return Failed(refusal_);
  return {};
}

Result<> SafeFile::Replace(std::string_view text) {
  const LimitFails whileWriting;
  int error = refusal_;
  if (error == 0) {
    error = Complete(text);
    if (error != 0) return Failed(error);
    error = TakeTarget(text);
  }
  if (error == 0) {
    FlushFolder(Folder());
    return {};
  }
  if (old_ && whole_ && FolderRefuses(error)) return WriteOver(text);
  return Failed(error);
}

Result<> SafeFile::WriteOver(std::string_view text) {
  // So that the file with the whole text survives a power failure during the writing in place.
  if (!temporary_.empty()) FlushFolder(Folder());
  const InPlaceResult result = WriteInPlace(target_, text);
  if (result.State == InPlace::Written) return {};
  if (result.State == InPlace::Damaged) {
    damaged_ = true;
    kept_ = std::exchange(temporary_, {});
  }
  return Failed(result.Error);
}

Result<> SafeFile::FindTarget() {
  for (int links = 0; links < MaxLinks; ++links) {
    struct stat status {};
    int error = ErrorOf([&] { return ::lstat(target_.c_str(), &status); });
    if (error == ENOENT) return {};
    if (error != 0) return Failed(error);
    if (!S_ISLNK(status.st_mode)) {
      if (!S_ISREG(status.st_mode)) return tl::unexpected(Fault::OfKind(status.st_mode));
      error = ErrorOf([&] { return ::faccessat(AT_FDCWD, target_.c_str(), W_OK, AT_EACCESS); });
      if (error == 0) error = old_.emplace().Read(target_, status);
      if (error != 0) return Failed(error);
      return {};
    }
    std::array<char, PATH_MAX> text{};
    const ssize_t size =
        Uninterrupted([&] { return ::readlink(target_.c_str(), text.data(), text.size()); });
    if (size < 0) return Failed(errno);
    if (size == PATH_MAX) return Failed(ENAMETOOLONG);
    // A relative link is relative to its own folder; an absolute one replaces the whole path.
    target_ = target_.parent_path() / std::string(text.data(), static_cast<std::size_t>(size));
  }
  return Failed(ELOOP);
}

int SafeFile::Complete(std::string_view text) {
  whole_ = false;
  const Giving given = old_ ? old_->GiveTo(file_.Number()) : Giving{Given::All};
  mayReplace_ = given.Rights == Given::All;
  if (given.Rights == Given::Failed) return given.Error;
  int error = WriteAll(file_.Number(), text).Error;
  if (error == 0) error = Flush(file_.Number());
  whole_ = error == 0;
  return error;
}

int SafeFile::OpenUnnamed() {
  return OpenTemporary(Folder(), O_TMPFILE);
}

int SafeFile::OpenNamed() {
  return MakeTemporary([&](const auto& name) { return OpenTemporary(name, O_CREAT | O_EXCL); });
}

int SafeFile::OpenTemporary(const std::filesystem::path& path, int flags) {
  const mode_t mode = old_ ? Permissions::StartMode : NewMode;
  const auto open = [&] { return ::open(path.c_str(), flags | O_WRONLY | O_CLOEXEC, mode); };
  const int number = Uninterrupted(open);
  const int error = number >= 0 ? 0 : errno;
  file_ = Descriptor(number);
  return error;
}

int SafeFile::TakeTarget(std::string_view text) {
  if (temporary_.empty()) {
    const int error = NameTemporary(text);
    // A file that replaces nothing has already been given the target's name.
    if (error != 0 || temporary_.empty()) return error;
  }
  file_.Close();
  return old_ ? TakeOldName() : TakeNewName();
}

int SafeFile::NameTemporary(std::string_view text) {
  int error =
      old_ ? MakeTemporary([&](const auto& name) { return LinkTo(name); }) : LinkTo(target_);
  if (!NeedsSimplerWay(error)) return error;
  error = OpenNamed();
  return error != 0 ? error : Complete(text);
}

int SafeFile::TakeOldName() {
  if (!mayReplace_) return EPERM;
  const int error = ErrorOf([&] { return std::rename(temporary_.c_str(), target_.c_str()); });
  if (error == 0) temporary_.clear();
  return error;
}

int SafeFile::TakeNewName() {
  const char* const from = temporary_.c_str();
  const char* const to = target_.c_str();
  int error = ErrorOf([&] { return ::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE); });
  if (NeedsSimplerWay(error)) {
    error = ErrorOf([&] { return ::link(from, to); });
    // The temporary name is removed by the destructor.
    if (error == 0) return 0;
  }
  if (NeedsSimplerWay(error)) error = TakeReservedName();
  if (error == 0) temporary_.clear();
  return error;
}

int SafeFile::TakeReservedName() {
  // Creates an empty file with the name, if there is none, and the new file then replaces that.
  constexpr int Flags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
  const auto reserve = [&] { return ::open(target_.c_str(), Flags, NewMode); };
  Descriptor reserved(Uninterrupted(reserve));
  if (!reserved.IsOpen()) return errno;
  reserved.Close();
  const int error = ErrorOf([&] { return std::rename(temporary_.c_str(), target_.c_str()); });
  if (error != 0) Uninterrupted([&] { return ::unlink(target_.c_str()); });
  return error;
}

int SafeFile::LinkTo(const std::filesystem::path& name) const {
  const std::string open = "/proc/self/fd/" + std::to_string(file_.Number());
  return ErrorOf(
      [&] { return ::linkat(AT_FDCWD, open.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW); });
}

template <typename Make>
int SafeFile::MakeTemporary(Make make) {
  // Short, so that it fits wherever the target's name fits. The process number keeps it apart from
  // those of other editors, and from what killed ones have left.
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

}  // namespace terramark::files
