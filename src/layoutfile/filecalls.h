// The system's calls on files as a save makes them: repeated when a signal cuts in, closed in time.
#pragma once

#include <cerrno>
#include <cstddef>
#include <string_view>
#include <utility>

namespace terramark {

/// The call's result, once no signal has interrupted it; errno tells of a failure.
template <typename Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

/// An open file's number, or -1. What a save writes has been flushed before it is closed, so that
/// the closing has nothing to report.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() { Close(); }

  bool IsOpen() const { return number_ >= 0; }
  int Number() const { return number_; }
  void Close();

 private:
  int number_;
};

/// Writes from the file's start on; how many bytes have been taken, all of them unless it failed.
std::size_t WriteAll(int file, std::string_view text);

/// Whether all of the file is on the disk.
bool Flush(int file);

}  // namespace terramark
