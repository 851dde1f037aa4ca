// Replaces a file as a whole: its name has either the new text or the old file.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "files/fault.h"
#include "files/replacementfile.h"

namespace terramark::files {

/// The editor saves without Qt, whose QSaveFile would not do: it keeps neither owner nor access
/// list of the old file, and does not restore the old bytes where it writes in place.
///
/// The new text is written to a temporary file in the target's folder. When all of it is on the
/// disk the temporary file takes the target's name. Of a symbolic link the file behind it is
/// replaced. An old file without write permission is not replaced, nor a file that somebody creates
/// meanwhile where there was none.
///
/// Nobody gains or loses a right. The old file is therefore written in place, and stays the same
/// file, where the new one cannot get its owner, or where somebody would lose a right because it
/// cannot get the group, mode or access list; also where the folder refuses a new file or the
/// rename. When writing in place fails the old bytes are restored. Until it is done the temporary
/// file with the whole text stays beside the target, unless the folder refuses one.
///
/// Hard links: a replaced file is a new one, and other names of the old file keep the old text.
/// When it is written in place, all its names have the new text.
///
/// A process that is killed leaves the old or the new text, but while it writes in place perhaps a
/// mix. The temporary file has no name until it is complete, and then one of its own for a moment,
/// or for as long as the writing in place takes. A kill in that time, or at any time on a file
/// system without unnamed files, leaves a hidden ".terramark-..." beside the target. Nothing reads
/// it, and it may be deleted, unless it is Kept or the target is a mix. On a file system that can
/// neither link nor rename without replacing, a kill may leave a new target empty.
///
/// On Windows the system replaces the file, which keeps its attributes and its time of creation.
/// The old file has a hidden name beside the target meanwhile, ".terramark-...-old": a kill between
/// the two changes of names leaves it there, and nothing under the target's name. The rights are
/// owner and access list. While another program has the file open without allowing this, a save
/// waits for a second, and then fails; a link to a file that does not exist is refused.
class SafeFile {
 public:
  explicit SafeFile(std::filesystem::path target);

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
  Result<> WriteOver(std::string_view text);
  void KeepText();

  std::unique_ptr<ReplacementFile> new_;
  int refusal_ = 0;  // why the folder takes no temporary file
  bool damaged_ = false;
  std::filesystem::path kept_;
};

}  // namespace terramark::files
