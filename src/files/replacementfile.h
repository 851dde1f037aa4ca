// The file with the new text that is to take the name of another one. How it does that differs from
// system to system: see posix/ and windows/.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "files/fault.h"

namespace terramark::files {

/// A temporary file in the target's folder. The order of the calls is that of the members; all
/// errors are the system's numbers.
class ReplacementFile {
 public:
  ReplacementFile() = default;
  ReplacementFile(const ReplacementFile&) = delete;
  ReplacementFile& operator=(const ReplacementFile&) = delete;
  /// Removes the temporary file, unless it has become the target or is kept.
  virtual ~ReplacementFile() = default;

  /// Finds the target behind links, and whether there is an old file. Refuses what is no regular
  /// file or may not be written.
  virtual Result<> FindTarget() = 0;
  /// The file behind the links.
  virtual const std::filesystem::path& Target() const = 0;

  /// Creates the temporary file; 0 or an error.
  virtual int Create() = 0;

  /// Writes the text, has it on the disk, and then takes the target's name; 0 or an error.
  virtual int TakeTarget(std::string_view text) = 0;
  /// Whether TakeTarget has left nothing under the target's name, although there was a file.
  virtual bool HasLostTarget() const { return false; }

  /// Whether after this error of Create or TakeTarget the old file may be written in place: the
  /// folder refuses a new file or the change of names, or somebody would lose a right by it.
  virtual bool OldMayBeOverwritten(int error) const = 0;
  /// Has the temporary file's name on the disk too.
  virtual void FlushName() = 0;

  /// Leaves the temporary file where it is and returns its path; empty if there is none.
  virtual std::filesystem::path Keep() = 0;
};

std::unique_ptr<ReplacementFile> MakeReplacementFile(std::filesystem::path target);

}  // namespace terramark::files
