#include "layoutfile/inplace.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <optional>
#include <string>

#include "forms/descriptor.h"
#include "forms/readbytes.h"
#include "layoutfile/writeall.h"

namespace terramark {

namespace {

constexpr off_t MostKept = off_t{64} << 20;

/// The whole file; nothing when it is none to keep in memory, or cannot be read to its end.
std::optional<std::string> ReadAll(int file) {
  struct stat status {};
  if (forms::Uninterrupted([&] { return ::fstat(file, &status); }) != 0) return std::nullopt;
  if (!S_ISREG(status.st_mode) || status.st_size > MostKept) return std::nullopt;
  const auto size = static_cast<std::size_t>(status.st_size);
  auto bytes = forms::ReadBytes(file, size);
  return bytes && bytes->size() == size ? bytes : std::nullopt;
}

bool Truncate(int file, std::size_t size) {
  return forms::Uninterrupted([&] { return ::ftruncate(file, static_cast<off_t>(size)); }) == 0;
}

/// A full disk shows here, before a byte of the old text is gone. The size stays, and where room
/// cannot be asked for, the writing finds out.
bool MakeRoom(int file, std::size_t size) {
  if (size == 0) return true;
  const auto length = static_cast<off_t>(size);
  if (forms::Uninterrupted([&] { return ::fallocate(file, FALLOC_FL_KEEP_SIZE, 0, length); }) ==
      0) {
    return true;
  }
  return errno == EOPNOTSUPP || errno == ENOSYS || errno == EINVAL;
}

bool PutBack(int file, std::string_view old, std::size_t overwritten, bool cut) {
  const std::size_t put = WriteAll(file, old);
  const bool sized = Truncate(file, old.size()) || overwritten <= old.size();
  // A bad spot that stopped the new text stops the old one too, but has it still.
  const std::size_t lost = cut ? old.size() : std::min(overwritten, old.size());
  return put >= lost && sized && Flush(file);
}

}  // namespace

InPlace WriteInPlace(const std::filesystem::path& path, std::string_view text) {
  const forms::Descriptor file(
      forms::Uninterrupted([&] { return ::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC); }));
  if (!file.IsOpen()) return InPlace::Kept;
  const std::optional<std::string> old = ReadAll(file.Number());
  if (!old) return InPlace::Kept;

  if (!MakeRoom(file.Number(), text.size())) {
    // Gives back what room there was.
    Truncate(file.Number(), old->size());
    return InPlace::Kept;
  }
  const std::size_t written = WriteAll(file.Number(), text);
  const bool cut = written == text.size() && Truncate(file.Number(), text.size());
  if (cut && Flush(file.Number())) return InPlace::Written;
  return PutBack(file.Number(), *old, written, cut) ? InPlace::Kept : InPlace::Damaged;
}

}  // namespace terramark
