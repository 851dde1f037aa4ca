#include "files/replacementfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <csignal>
#include <cstdio>
#include <optional>
#include <string>
#include <utility>

#include "files/openfile.h"
#include "files/posix/calls.h"
#include "files/posix/permissions.h"
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

class PosixReplacement final : public ReplacementFile {
 public:
  explicit PosixReplacement(std::filesystem::path target) : target_(std::move(target)) {}
  ~PosixReplacement() override;

  Result<> FindTarget() override;
  const std::filesystem::path& Target() const override { return target_; }
  int Create() override;
  int TakeTarget(std::string_view text) override;
  bool OldMayBeOverwritten(int error) const override;
  void FlushName() override;
  std::filesystem::path Keep() override { return std::exchange(temporary_, {}); }

 private:
  // These return 0 or an errno.
  int Complete(std::string_view text);
  int CreateUnnamed();
  int CreateNamed();
  int CreateTemporary(const std::filesystem::path& path, int flags);
  int TakeName(std::string_view text);
  int NameTemporary(std::string_view text);
  int TakeOldName();
  int TakeNewName();
  int TakeReservedName();
  int LinkTo(const std::filesystem::path& name) const;
  template <typename Make>
  int MakeTemporary(Make make);

  std::filesystem::path Folder() const;

  LimitFails whileWriting_;
  std::filesystem::path target_;
  std::optional<Permissions> old_;   // of the target, when there is one
  Descriptor file_;                  // the temporary file while it is open
  std::filesystem::path temporary_;  // its name, once it has one
  bool whole_ = true;                // false while the temporary file has a part of the text
  bool mayReplace_ = true;           // whether nobody would lose a right by it
};

PosixReplacement::~PosixReplacement() {
  if (temporary_.empty()) return;
  Uninterrupted([&] { return ::unlink(temporary_.c_str()); });
}

Result<> PosixReplacement::FindTarget() {
  for (int links = 0; links < MaxLinks; ++links) {
    struct stat status {};
    int error = ErrorOf([&] { return ::lstat(target_.c_str(), &status); });
    if (error == ENOENT) return {};
    if (error != 0) return Failed(error);
    if (!S_ISLNK(status.st_mode)) {
      if (S_ISDIR(status.st_mode)) return tl::unexpected(Fault::IsFolder());
      if (!S_ISREG(status.st_mode)) return tl::unexpected(Fault::IsNoPlainFile());
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

int PosixReplacement::Create() {
  const int error = CreateUnnamed();
  return NeedsSimplerWay(error) ? CreateNamed() : error;
}

int PosixReplacement::TakeTarget(std::string_view text) {
  int error = Complete(text);
  if (error == 0) error = TakeName(text);
  if (error == 0) FlushFolder(Folder());
  return error;
}

bool PosixReplacement::OldMayBeOverwritten(int error) const {
  return old_ && whole_ && FolderRefuses(error);
}

void PosixReplacement::FlushName() {
  if (!temporary_.empty()) FlushFolder(Folder());
}

int PosixReplacement::Complete(std::string_view text) {
  whole_ = false;
  const Giving given = old_ ? old_->GiveTo(Native(file_.Number())) : Giving{Given::All};
  mayReplace_ = given.Rights == Given::All;
  if (given.Rights == Given::Failed) return given.Error;
  int error = WriteAll(file_.Number(), text).Error;
  if (error == 0) error = Flush(file_.Number());
  whole_ = error == 0;
  return error;
}

int PosixReplacement::CreateUnnamed() {
  return CreateTemporary(Folder(), O_TMPFILE);
}

int PosixReplacement::CreateNamed() {
  return MakeTemporary([&](const auto& name) { return CreateTemporary(name, O_CREAT | O_EXCL); });
}

int PosixReplacement::CreateTemporary(const std::filesystem::path& path, int flags) {
  const mode_t mode = old_ ? Permissions::StartMode : NewMode;
  const auto open = [&] { return ::open(path.c_str(), flags | O_WRONLY | O_CLOEXEC, mode); };
  const int number = Uninterrupted(open);
  const int error = number >= 0 ? 0 : errno;
  file_ = Descriptor(number);
  return error;
}

int PosixReplacement::TakeName(std::string_view text) {
  if (temporary_.empty()) {
    const int error = NameTemporary(text);
    // A file that replaces nothing has already been given the target's name.
    if (error != 0 || temporary_.empty()) return error;
  }
  file_.Close();
  return old_ ? TakeOldName() : TakeNewName();
}

int PosixReplacement::NameTemporary(std::string_view text) {
  int error =
      old_ ? MakeTemporary([&](const auto& name) { return LinkTo(name); }) : LinkTo(target_);
  if (!NeedsSimplerWay(error)) return error;
  error = CreateNamed();
  return error != 0 ? error : Complete(text);
}

int PosixReplacement::TakeOldName() {
  if (!mayReplace_) return EPERM;
  const int error = ErrorOf([&] { return std::rename(temporary_.c_str(), target_.c_str()); });
  if (error == 0) temporary_.clear();
  return error;
}

int PosixReplacement::TakeNewName() {
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

int PosixReplacement::TakeReservedName() {
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

int PosixReplacement::LinkTo(const std::filesystem::path& name) const {
  const std::string open = "/proc/self/fd/" + std::to_string(file_.Number());
  return ErrorOf(
      [&] { return ::linkat(AT_FDCWD, open.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW); });
}

template <typename Make>
int PosixReplacement::MakeTemporary(Make make) {
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

std::filesystem::path PosixReplacement::Folder() const {
  return target_.has_parent_path() ? target_.parent_path() : std::filesystem::path(".");
}

}  // namespace

std::unique_ptr<ReplacementFile> MakeReplacementFile(std::filesystem::path target) {
  return std::make_unique<PosixReplacement>(std::move(target));
}

}  // namespace terramark::files
