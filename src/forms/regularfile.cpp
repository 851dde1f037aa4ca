#include "forms/regularfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "forms/readbytes.h"

namespace terramark::forms {

RegularFile::RegularFile(const std::filesystem::path& path) {
  // The system's call would take the path for one that ends at the NUL.
  if (path.native().find('\0') != std::string::npos) return;
  // Asked before opening: that alone can stir a pipe's writer or a device.
  struct stat status {};
  if (Uninterrupted([&] { return ::stat(path.c_str(), &status); }) != 0 || !S_ISREG(status.st_mode))
    return;
  constexpr int Flags = O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
  file_ = Descriptor(Uninterrupted([&] { return ::open(path.c_str(), Flags); }));
  if (file_.IsOpen() && !TakeSize()) file_.Close();
}

bool RegularFile::TakeSize() {
  struct stat status {};
  if (Uninterrupted([&] { return ::fstat(file_.Number(), &status); }) != 0 ||
      !S_ISREG(status.st_mode))
    return false;
  if (status.st_size > 0) {
    size_ = static_cast<std::uintmax_t>(status.st_size);
    return true;
  }
  // The kernel's own files call themselves empty; then they give bytes, or let the reader wait.
  const auto byte = ReadBytes(file_.Number(), 1);
  return byte && byte->empty();
}

std::optional<std::string> RegularFile::Read(std::size_t most) const {
  if (!IsOpen()) return std::nullopt;
  // Fewer when another program has cut the file short in the meantime.
  return ReadBytes(file_.Number(), static_cast<std::size_t>(std::min<std::uintmax_t>(size_, most)));
}

bool RegularFile::ReadAt(std::uintmax_t offset, std::span<char> room) const {
  return IsOpen() && ReadInto(file_.Number(), offset, room) == room.size();
}

}  // namespace terramark::forms
