// The reason why something cannot be done with a file.
#pragma once

#include <sys/types.h>

#include <string>
#include <tl/expected.hpp>

namespace terramark::files {

class Fault {
 public:
  /// A call of the system failed with this errno.
  explicit Fault(int error) : error_(error) {}
  /// The file is not a regular one, according to its mode as stat returns it.
  static Fault OfKind(mode_t mode);

  /// The errno; 0 when the kind of the file is the reason.
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

}  // namespace terramark::files
