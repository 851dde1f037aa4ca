// Replaces a file as a whole: its name has either the new text or the old file.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "files/descriptor.h"
#include "files/fault.h"
#include "files/permissions.h"

namespace terramark::files {

/// Qt's QSaveFile does not serve: it keeps neither the owner nor the access list of the old file,
/// and where it writes in place it does not put the old bytes back. And the editor saves without
/// Qt.
///
/// The new text goes into a temporary file in the target's folder and takes the target's name when
/// all of it has reached the disk; what a link names is replaced, not the link. An old file that
/// may not be written is not replaced. Where there was no file, one that comes into being meanwhile
/// is not replaced either.
///
/// Nobody gains a right by it, and nobody loses one. So the old file is written in place, and stays
/// the same file, where the new one cannot be given its owner, or its group, mode or access list
/// and somebody would lose a right by that; and where the folder refuses a new file or its name.
/// Its bytes are put back when that fails. Meanwhile the temporary file stands beside it with the
/// whole text, unless the folder takes none.
///
/// Hard links: a replaced file is a new one, and other names of the old file keep the old text;
/// written in place, all of them show the new.
///
/// A kill leaves the old text or the new one, but in place perhaps a mix. The temporary file has no
/// name until it is whole, and then for a moment one of its own, or as long as is written in place.
/// A kill in that time, or at any time on a file system that cannot do without names, leaves a
/// hidden ".terramark-..." beside the target, which nothing reads and which may be deleted, unless
/// it is Kept or the target is a mix. Where the file system neither links nor renames without
/// replacing, a kill may leave a new target empty.
class SafeFile {
 public:
  explicit SafeFile(std::filesystem::path target);
  SafeFile(const SafeFile&) = delete;
  SafeFile& operator=(const SafeFile&) = delete;
  /// Removes the temporary file, unless it has become the target or is kept.
  ~SafeFile();

  /// Checks whether the target can be written, as far as that is known beforehand. Touches nothing
  /// but the temporary file.
  Result<> Open();

  /// Makes the text the target's content, once, after Open. A failure leaves the target as it was,
  /// except when the disk fails in the middle of writing in place and fails again for the old text.
  Result<> Replace(std::string_view text);

  /// Whether a Replace that failed left the target with neither the old nor the new text.
  bool Damaged() const { return damaged_; }
  /// The file beside a damaged target that has the new text; empty where the folder accepted none.
  const std::filesystem::path& Kept() const { return kept_; }

 private:
  Result<> FindTarget();
  Result<> WriteOver(std::string_view text);

  // These return 0 or an errno.
  int Complete(std::string_view text);
  int OpenUnnamed();
  int OpenNamed();
  int OpenTemporary(const std::filesystem::path& path, int flags);
  int TakeTarget(std::string_view text);
  int NameTemporary(std::string_view text);
  int TakeOldName();
  int TakeNewName();
  int TakeReservedName();
  int LinkTo(const std::filesystem::path& name) const;
  template <typename Make>
  int MakeTemporary(Make make);

  std::filesystem::path Folder() const;

  std::filesystem::path target_;
  std::optional<Permissions> old_;   // of the target, when there is one
  Descriptor file_;                  // the temporary file while it is open
  std::filesystem::path temporary_;  // its name, once it has one
  bool whole_ = true;                // false while the temporary file has a part of the text
  bool mayReplace_ = true;           // whether nobody would lose a right by it
  bool damaged_ = false;
  std::filesystem::path kept_;
  int refusal_ = 0;  // why the folder takes no temporary file
};

}  // namespace terramark::files
