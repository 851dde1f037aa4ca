#include "forms/regularfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "forms/readbytes.h"

namespace terramark::forms {

RegularFile::RegularFile(const std::filesystem::path& path) {
  why_ = Open(path);
  if (!why_.empty()) file_.Close();
}

Fault RegularFile::Open(const std::filesystem::path& path) {
  // The system's call would take the path for one that ends at the NUL.
  if (path.native().find('\0') != std::string::npos) return FaultOf(ENOENT);
  // Asked before opening: that alone can stir a pipe's writer or a device.
  struct stat status {};
  if (Uninterrupted([&] { return ::stat(path.c_str(), &status); }) != 0) return FaultOf(errno);
  if (!S_ISREG(status.st_mode)) return FaultOfKind(status.st_mode);
  constexpr int Flags = O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
  file_ = Descriptor(Uninterrupted([&] { return ::open(path.c_str(), Flags); }));
  return file_.IsOpen() ? TakeSize() : FaultOf(errno);
}

Fault RegularFile::TakeSize() {
  struct stat status {};
  if (Uninterrupted([&] { return ::fstat(file_.Number(), &status); }) != 0) return FaultOf(errno);
  if (!S_ISREG(status.st_mode)) return FaultOfKind(status.st_mode);
  size_ = static_cast<std::uintmax_t>(status.st_size);
  if (size_ > 0) return {};
  // The kernel's own files call themselves empty; then they give bytes, or let the reader wait.
  const auto byte = ReadBytes(file_.Number(), 1);
  if (!byte) return FaultOf(errno);
  return byte->empty() ? Fault() : "it is no plain file";
}

std::optional<FileVersion> RegularFile::Version() const {
  if (!IsOpen()) return std::nullopt;
  auto version = VersionOf(file_.Number());
  if (!version) Failed();
  return version;
}

std::optional<std::string> RegularFile::Read(std::size_t most) const {
  if (!IsOpen()) return std::nullopt;
  // Fewer when another program has cut the file short in the meantime.
  const auto count = static_cast<std::size_t>(std::min<std::uintmax_t>(size_, most));
  auto bytes = ReadBytes(file_.Number(), count);
  if (!bytes) Failed();
  return bytes;
}

bool RegularFile::ReadAt(std::uintmax_t offset, std::span<char> room) const {
  if (!IsOpen()) return false;
  const auto got = ReadInto(file_.Number(), offset, room);
  if (!got) Failed();
  return got == room.size();
}

void RegularFile::Failed() const {
  why_ = FaultOf(errno);
}

}  // namespace terramark::forms
