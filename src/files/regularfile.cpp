#include "files/regularfile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>

#include "files/readbytes.h"

namespace terramark::files {

namespace {

/// No fault for a regular file.
Result<> Regular(int error, const struct stat& status) {
  if (error != 0) return Failed(error);
  if (!S_ISREG(status.st_mode)) return tl::unexpected(Fault::OfKind(status.st_mode));
  return {};
}

}  // namespace

Result<RegularFile> RegularFile::Open(const std::filesystem::path& path) {
  // The system would end the path at the NUL.
  if (path.native().find('\0') != std::string::npos) return Failed(ENOENT);
  // Checked before opening: opening alone can wake the writer of a pipe, or a device.
  struct stat status {};
  const int error = ErrorOf([&] { return ::stat(path.c_str(), &status); });
  if (const auto regular = Regular(error, status); !regular) {
    return tl::unexpected(regular.error());
  }
  constexpr int Flags = O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
  Descriptor opened(Uninterrupted([&] { return ::open(path.c_str(), Flags); }));
  if (!opened.IsOpen()) return Failed(errno);
  RegularFile file(std::move(opened));
  if (const auto sized = file.TakeSize(); !sized) return tl::unexpected(sized.error());
  return file;
}

Result<> RegularFile::TakeSize() {
  struct stat status {};
  const int error = ErrorOf([&] { return ::fstat(file_.Number(), &status); });
  if (auto regular = Regular(error, status); !regular) return regular;
  size_ = static_cast<std::uintmax_t>(status.st_size);
  if (size_ > 0) return {};
  // Files that the kernel generates report the size 0, but give bytes or block the reader.
  const auto byte = ReadBytes(file_.Number(), 1);
  if (!byte) return tl::unexpected(byte.error());
  if (!byte->empty()) return tl::unexpected(Fault::OfKind(S_IFCHR));
  return {};
}

Result<std::string> RegularFile::Read(std::size_t most) const {
  const auto count = static_cast<std::size_t>(std::min<std::uintmax_t>(size_, most));
  return ReadBytes(file_.Number(), count);
}

Result<std::size_t> RegularFile::ReadAt(std::uintmax_t offset, std::span<char> room) const {
  return ReadInto(file_.Number(), offset, room);
}

Result<std::string> ReadRegularFile(const std::filesystem::path& path, std::size_t most) {
  return RegularFile::Open(path).and_then([&](const auto& file) { return file.Read(most); });
}

bool CanOpenNamedFile(const std::filesystem::path& namedBy, const std::filesystem::path& name) {
  return RegularFile::Open(namedBy.parent_path() / name).has_value();
}

}  // namespace terramark::files
