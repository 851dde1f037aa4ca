// An open file that closes itself.
#pragma once

#include <cstdint>
#include <utility>

namespace terramark::files {

/// What the system calls an open file by: a file descriptor, or a handle.
using FileNumber = std::intptr_t;

/// The number of an open file, or -1. Written bytes must be flushed before, so that closing has no
/// failure to report.
class Descriptor {
 public:
  explicit Descriptor(FileNumber number = -1) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() { Close(); }

  bool IsOpen() const { return number_ != -1; }
  FileNumber Number() const { return number_; }
  /// Implemented beside the other calls, in posix/openfile.cpp and windows/openfile.cpp.
  void Close();

 private:
  FileNumber number_;
};

}  // namespace terramark::files
