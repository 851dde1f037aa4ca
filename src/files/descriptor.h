// An open file that is closed in time, and the system's calls repeated when a signal cuts in.
#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace terramark::files {

/// The call's result, once no signal has interrupted it; errno tells of a failure.
template <typename Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

/// 0, or the errno with which the call has failed.
template <typename Call>
int ErrorOf(Call call) {
  return Uninterrupted(call) < 0 ? errno : 0;
}

/// An open file's number, or -1. What is written has to be flushed before, so that the closing has
/// nothing to report.
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
    // Never twice: even a closing that fails has given the number back.
    if (number_ >= 0) ::close(number_);
    number_ = -1;
  }

 private:
  int number_;
};

}  // namespace terramark::files
