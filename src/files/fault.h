// Why something cannot be done with a file.
#pragma once

#include <sys/types.h>

#include <string>
#include <tl/expected.hpp>

namespace terramark::files {

class Fault {
 public:
  /// A call of the system has failed with this errno.
  explicit Fault(int error) : error_(error) {}
  /// The file is no regular one, by its mode, as stat gives it.
  static Fault OfKind(mode_t mode);

  /// The errno; 0 when it is the kind of the file.
  int Error() const { return error_; }
  /// For the user: words that stand behind a colon, with a small letter first, in English as all
  /// that the editor says.
  std::string Description() const;

 private:
  int error_;
  const char* kind_ = nullptr;
};

/// What a step with a file gives, or why it has failed.
template <typename Value = void>
using Result = tl::expected<Value, Fault>;

/// As the result of such a step: it has failed.
inline tl::unexpected<Fault> Failed(int error) {
  return tl::unexpected(Fault(error));
}

}  // namespace terramark::files
