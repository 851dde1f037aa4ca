// The reason why something cannot be done with a file.
#pragma once

#include <string>
#include <tl/expected.hpp>

namespace terramark::files {

class Fault {
 public:
  /// A call of the system failed with this number: an errno, or a system error code of Windows.
  explicit Fault(int error) : error_(error) {}
  /// The name is that of a folder.
  static Fault IsFolder();
  /// The name is that of a pipe, a device or the like.
  static Fault IsNoPlainFile();

  /// The system's number; 0 when the kind of the file is the reason.
  int Error() const { return error_; }
  /// The text for the user, to stand after a colon: it begins with a small letter and is in
  /// English, like all texts of the editor.
  std::string Description() const;

 private:
  int error_;
  const char* kind_ = nullptr;
};

/// The result of an operation on a file, or the reason of its failure.
template <typename Value = void>
using Result = tl::expected<Value, Fault>;

/// The failed result of such an operation.
inline tl::unexpected<Fault> Failed(int error) {
  return tl::unexpected(Fault(error));
}

/// The system's numbers for what the editor itself finds.
extern const int NoSuchFile;
extern const int FileTooLarge;
extern const int InputOutputError;

/// What the system means by a number, in the words of Description.
std::string ErrorText(int error);

}  // namespace terramark::files
