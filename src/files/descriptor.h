// An open file that closes itself, and system calls that are repeated when a signal interrupts
// them.
#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace terramark::files {

/// Repeats a call of the system until no signal interrupts it. After a failure errno has the
/// reason.
template <typename Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

/// 0, or the errno with which the call failed.
template <typename Call>
int ErrorOf(Call call) {
  return Uninterrupted(call) < 0 ? errno : 0;
}

/// The number of an open file, or -1. Written bytes must be flushed before, so that closing has no
/// failure to report.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() { Close(); }

  bool IsOpen() const { return number_ >= 0; }
  int Number() const { return number_; }
  void Close() {
    // Called once only: the number is free again even after a close that failed.
    if (number_ >= 0) ::close(number_);
    number_ = -1;
  }

 private:
  int number_;
};

}  // namespace terramark::files
