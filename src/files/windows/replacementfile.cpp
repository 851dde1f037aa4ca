#include "files/replacementfile.h"

#include <optional>
#include <string>
#include <utility>

#include "files/openfile.h"
#include "files/windows/calls.h"
#include "files/windows/extendedpath.h"
#include "files/windows/rights.h"
#include "files/writeall.h"

namespace terramark::files {

namespace {

/// Programs that look into each new file, such as virus scanners, have it open for a moment.
constexpr int Tries = 20;
constexpr DWORD WaitMilliseconds = 50;

bool IsTaken(const std::wstring& name) {
  return ::GetFileAttributesW(name.c_str()) != INVALID_FILE_ATTRIBUTES;
}

/// Repeats a call while another program has the file open, for a second.
template <typename Call>
int Patiently(Call call) {
  int error = ErrorOf(call());
  for (int i = 1; i < Tries && error == ERROR_SHARING_VIOLATION; ++i) {
    ::Sleep(WaitMilliseconds);
    error = ErrorOf(call());
  }
  return error;
}

/// From FindTarget on all names are in the form that ExtendedPath gives.
class WindowsReplacement final : public ReplacementFile {
 public:
  explicit WindowsReplacement(std::filesystem::path target) : target_(std::move(target)) {}
  ~WindowsReplacement() override;

  Result<> FindTarget() override;
  const std::filesystem::path& Target() const override { return target_; }
  int Create() override;
  int TakeTarget(std::string_view text) override;
  bool HasLostTarget() const override { return lost_; }
  bool OldMayBeOverwritten(int error) const override;
  /// The system has no call for the name alone; the file's own flush came before.
  void FlushName() override {}
  std::filesystem::path Keep() override { return std::exchange(temporary_, {}); }

 private:
  Result<> FollowLinks();
  int TryToWrite() const;

  // These return 0 or an error code.
  int Complete(std::string_view text);
  int TakeOldName();
  /// Without flags it is refused when there is a file of the target's name.
  int TakeName(DWORD flags) const;

  std::filesystem::path target_;
  std::optional<Rights> old_;  // of the target, when there is one
  Descriptor file_;            // the temporary file while it is open
  std::wstring temporary_;     // its name, once there is one
  std::wstring backup_;        // where the old file is while it is replaced
  bool whole_ = true;          // false while the temporary file has a part of the text
  bool lost_ = false;
};

WindowsReplacement::~WindowsReplacement() {
  file_.Close();
  if (!temporary_.empty()) Patiently([&] { return ::DeleteFileW(temporary_.c_str()); });
}

Result<> WindowsReplacement::FindTarget() {
  auto name = ExtendedPath(target_);
  if (!name) return tl::unexpected(name.error());
  target_ = *std::move(name);
  DWORD attributes = ::GetFileAttributesW(target_.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    const int error = LastError();
    if (error == ERROR_FILE_NOT_FOUND) return {};
    return Failed(error);
  }
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
    if (auto followed = FollowLinks(); !followed) return followed;
    attributes = ::GetFileAttributesW(target_.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return Failed(LastError());
  }
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return tl::unexpected(Fault::IsFolder());
  if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) return Failed(ERROR_FILE_READ_ONLY);
  int error = TryToWrite();
  if (error == 0) error = old_.emplace().Read(target_.native(), attributes);
  if (error != 0) return Failed(error);
  return {};
}

/// A link to a file that does not exist is refused.
Result<> WindowsReplacement::FollowLinks() {
  const Descriptor file = Owned(::CreateFileW(target_.c_str(), 0, SharedWithAll, nullptr,
                                              OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  if (!file.IsOpen()) return Failed(LastError());
  std::wstring name(MAX_PATH, L'\0');
  for (DWORD length = 0;; name.resize(length)) {
    length = ::GetFinalPathNameByHandleW(Native(file.Number()), name.data(),
                                         static_cast<DWORD>(name.size()), FILE_NAME_NORMALIZED);
    if (length == 0) return Failed(LastError());
    if (length < name.size()) {
      name.resize(length);
      target_ = std::move(name);
      return {};
    }
  }
}

int WindowsReplacement::TryToWrite() const {
  const auto open = [&] {
    return Owned(::CreateFileW(target_.c_str(), GENERIC_WRITE, SharedWithAll, nullptr,
                               OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))
        .IsOpen();
  };
  return Patiently(open);
}

int WindowsReplacement::Create() {
  if (old_ && !old_->AreShown()) return ERROR_ACCESS_DENIED;
  // Short, so that it fits wherever the target's name fits. The process number keeps it apart from
  // those of other editors, and from what ended ones have left.
  const std::wstring stem = target_.parent_path() / L".terramark-";
  const std::wstring process = std::to_wstring(::GetCurrentProcessId());
  SECURITY_ATTRIBUTES* const rights = old_ ? old_->ForCreating() : nullptr;
  constexpr int Names = 10000;
  int error = ERROR_FILE_EXISTS;
  for (int i = 0; i < Names && error == ERROR_FILE_EXISTS; ++i) {
    const std::wstring name = stem + process + L"-" + std::to_wstring(i);
    backup_ = name + L"-old";
    if (IsTaken(backup_)) continue;
    file_ = Owned(::CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, rights,
                                CREATE_NEW, FILE_ATTRIBUTE_HIDDEN, nullptr));
    error = ErrorOf(file_.IsOpen());
    if (error == 0) temporary_ = name;
  }
  return error;
}

int WindowsReplacement::TakeTarget(std::string_view text) {
  int error = Complete(text);
  if (error == 0) error = old_ ? TakeOldName() : TakeName(0);
  if (error != 0) return error;
  temporary_.clear();
  // What has the name now is on the disk already; this brings the name there.
  const auto opened = OpenToOverwrite(target_);
  if (opened) Flush(opened->File.Number());
  return 0;
}

int WindowsReplacement::Complete(std::string_view text) {
  int error = WriteAll(file_.Number(), text).Error;
  if (error == 0) error = Flush(file_.Number());
  file_.Close();
  const DWORD attributes = old_ ? old_->Attributes() : FILE_ATTRIBUTE_ARCHIVE;
  if (error == 0) error = ErrorOf(::SetFileAttributesW(temporary_.c_str(), attributes));
  whole_ = error == 0;
  return error;
}

int WindowsReplacement::TakeOldName() {
  if (!old_->GiveOwnerTo(temporary_)) return ERROR_ACCESS_DENIED;
  const wchar_t* const target = target_.c_str();
  // Also gives the new file the creation time of the old one, its access list, and more.
  const int error = Patiently([&] {
    return ::ReplaceFileW(target, temporary_.c_str(), backup_.c_str(), 0, nullptr, nullptr);
  });
  if (error == 0) {
    Patiently([&] { return ::DeleteFileW(backup_.c_str()); });
  } else if (IsUnknownRequest(error)) {
    // Some networks cannot replace. Attributes and rights have been given already.
    return TakeName(MOVEFILE_REPLACE_EXISTING);
  } else if (!IsTaken(target)) {
    // It stopped between the two changes of names: the old file gets its name back.
    const int stuck = ErrorOf(::MoveFileExW(backup_.c_str(), target, MOVEFILE_WRITE_THROUGH));
    // There is no backup either: somebody else has removed the old file.
    if (stuck == ERROR_FILE_NOT_FOUND) return TakeName(0);
    lost_ = stuck != 0;
  }
  return error;
}

int WindowsReplacement::TakeName(DWORD flags) const {
  return Patiently([&] {
    return ::MoveFileExW(temporary_.c_str(), target_.c_str(), flags | MOVEFILE_WRITE_THROUGH);
  });
}

bool WindowsReplacement::OldMayBeOverwritten(int error) const {
  return old_ && whole_ && !lost_ &&
         (error == ERROR_ACCESS_DENIED || error == ERROR_UNABLE_TO_REMOVE_REPLACED);
}

}  // namespace

std::unique_ptr<ReplacementFile> MakeReplacementFile(std::filesystem::path target) {
  return std::make_unique<WindowsReplacement>(std::move(target));
}

}  // namespace terramark::files
