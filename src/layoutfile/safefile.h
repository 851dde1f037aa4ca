// Replaces a file as a whole: either the new text stands under its name, or the old file does.
#pragma once

#include <filesystem>
#include <string_view>

namespace terramark {

/// The new text goes into a temporary file beside the target and takes the target's name when all
/// of it has reached the disk; what a link names is replaced, not the link. An old file keeps its
/// permissions, and one that may not be written is not replaced. Where the folder takes no new
/// file, or does not let it take the name, the old file is written in place, once room for the new
/// text is certain.
class SafeFile {
 public:
  explicit SafeFile(const std::filesystem::path& target);
  SafeFile(const SafeFile&) = delete;
  SafeFile& operator=(const SafeFile&) = delete;
  /// Takes the temporary file away when it has not become the target.
  ~SafeFile();

  /// Whether the target can be written as far as can be told beforehand. Touches nothing but the
  /// temporary file.
  bool Open();

  /// Makes the text the target's content, once, after Open; false leaves the target as it was, but
  /// for a disk that fails in the middle of writing in place.
  bool Replace(std::string_view text);

 private:
  bool OpenTemporary();
  bool CompleteTemporary(std::string_view text);
  bool WriteInPlace(std::string_view text);

  std::filesystem::path target_;
  std::filesystem::path temporary_;
  int file_ = -1;  // the temporary file while it is open
  bool targetExists_ = false;
};

}  // namespace terramark
