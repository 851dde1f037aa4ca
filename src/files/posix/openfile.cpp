#include "files/openfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <utility>

#include "files/posix/calls.h"

namespace terramark::files {

namespace {

/// No fault for a regular file.
Result<> Regular(int error, const struct stat& status) {
  if (error != 0) return Failed(error);
  if (S_ISDIR(status.st_mode)) return tl::unexpected(Fault::IsFolder());
  if (!S_ISREG(status.st_mode)) return tl::unexpected(Fault::IsNoPlainFile());
  return {};
}

Result<OpenedFile> WithSize(Descriptor file) {
  struct stat status {};
  const int error = ErrorOf([&] { return ::fstat(Native(file.Number()), &status); });
  if (const auto regular = Regular(error, status); !regular) {
    return tl::unexpected(regular.error());
  }
  return OpenedFile{std::move(file), static_cast<std::uintmax_t>(status.st_size)};
}

}  // namespace

void Descriptor::Close() {
  // Called once only: the number is free again even after a close that failed.
  if (number_ >= 0) ::close(Native(number_));
  number_ = -1;
}

Result<OpenedFile> OpenToRead(const std::filesystem::path& path) {
  // Checked before opening: opening alone can wake the writer of a pipe, or a device.
  struct stat status {};
  const int error = ErrorOf([&] { return ::stat(path.c_str(), &status); });
  if (const auto regular = Regular(error, status); !regular) {
    return tl::unexpected(regular.error());
  }
  constexpr int Flags = O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
  Descriptor file(Uninterrupted([&] { return ::open(path.c_str(), Flags); }));
  if (!file.IsOpen()) return Failed(errno);
  auto opened = WithSize(std::move(file));
  if (!opened || opened->Size > 0) return opened;
  // Files that the kernel generates report the size 0, but give bytes or block the reader.
  std::array<char, 1> byte{};
  const auto read = ReadSome(opened->File.Number(), 0, byte);
  if (!read) return tl::unexpected(read.error());
  if (*read > 0) return tl::unexpected(Fault::IsNoPlainFile());
  return opened;
}

Result<OpenedFile> OpenToOverwrite(const std::filesystem::path& path) {
  constexpr int Flags = O_RDWR | O_NOFOLLOW | O_CLOEXEC;
  Descriptor file(Uninterrupted([&] { return ::open(path.c_str(), Flags); }));
  if (!file.IsOpen()) return Failed(errno);
  return WithSize(std::move(file));
}

Result<std::size_t> ReadSome(FileNumber file, std::uintmax_t offset, std::span<char> room) {
  const auto at = static_cast<off_t>(offset);
  const ssize_t got =
      Uninterrupted([&] { return ::pread(Native(file), room.data(), room.size(), at); });
  if (got < 0) return Failed(errno);
  return static_cast<std::size_t>(got);
}

Result<std::size_t> WriteSome(FileNumber file, std::uintmax_t offset, std::string_view text) {
  const auto at = static_cast<off_t>(offset);
  const ssize_t written =
      Uninterrupted([&] { return ::pwrite(Native(file), text.data(), text.size(), at); });
  if (written < 0) return Failed(errno);
  return static_cast<std::size_t>(written);
}

int Truncate(FileNumber file, std::uintmax_t size) {
  return ErrorOf([&] { return ::ftruncate(Native(file), static_cast<off_t>(size)); });
}

int Reserve(FileNumber file, std::uintmax_t size) {
  if (size == 0) return 0;
  const auto length = static_cast<off_t>(size);
  const auto reserve = [&] { return ::fallocate(Native(file), FALLOC_FL_KEEP_SIZE, 0, length); };
  const int error = ErrorOf(reserve);
  return error == EOPNOTSUPP || error == ENOSYS || error == EINVAL ? 0 : error;
}

int Flush(FileNumber file) {
  return ErrorOf([&] { return ::fsync(Native(file)); });
}

}  // namespace terramark::files
