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

/// The whole file; nothing, with errno, when it is none to keep in memory, or cannot be read to its
/// end.
std::optional<std::string> ReadAll(int file) {
  struct stat status {};
  if (forms::Uninterrupted([&] { return ::fstat(file, &status); }) != 0) return std::nullopt;
  errno = S_ISREG(status.st_mode) ? EFBIG : EINVAL;
  if (!S_ISREG(status.st_mode) || status.st_size > MostKept) return std::nullopt;
  const auto size = static_cast<std::size_t>(status.st_size);
  auto bytes = forms::ReadBytes(file, size);
  if (bytes && bytes->size() != size) {
    errno = EIO;  // it is being cut short just now
    return std::nullopt;
  }
  return bytes;
}

bool Truncate(int file, std::size_t size) {
  return forms::Uninterrupted([&] { return ::ftruncate(file, static_cast<off_t>(size)); }) == 0;
}

/// A full disk shows here, before a byte of the old text is gone. The size stays, and where room
/// cannot be asked for, the writing finds out. Gives 0 or an errno.
int MakeRoom(int file, std::size_t size) {
  if (size == 0) return 0;
  const auto length = static_cast<off_t>(size);
  const auto make = [&] { return ::fallocate(file, FALLOC_FL_KEEP_SIZE, 0, length); };
  if (forms::Uninterrupted(make) == 0) return 0;
  return errno == EOPNOTSUPP || errno == ENOSYS || errno == EINVAL ? 0 : errno;
}

/// How far a writing over old bytes came.
struct Progress {
  std::size_t Written = 0;
  bool Cut = false;  // what the old text had beyond the new one
  int Error = 0;
};

Progress Overwrite(int file, std::string_view text, std::size_t oldSize) {
  Progress done;
  done.Written = WriteAll(file, text);
  if (done.Written < text.size()) {
    done.Error = errno;
    return done;
  }
  // A file that has the right size already is not cut: that could only fail.
  done.Cut = text.size() < oldSize && Truncate(file, text.size());
  const bool sized = done.Cut || text.size() >= oldSize;
  if (!sized || !Flush(file)) done.Error = errno;
  return done;
}

bool PutBack(int file, std::string_view old, const Progress& done) {
  if (done.Written == 0 && !done.Cut) return true;
  const std::size_t put = WriteAll(file, old);
  const bool sized = done.Written <= old.size() || Truncate(file, old.size());
  // A bad spot that stopped the new text stops the old one too, but has it still.
  const std::size_t lost = done.Cut ? old.size() : std::min(done.Written, old.size());
  return put >= lost && sized && Flush(file);
}

}  // namespace

InPlaceResult WriteInPlace(const std::filesystem::path& path, std::string_view text) {
  const forms::Descriptor file(
      forms::Uninterrupted([&] { return ::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC); }));
  if (!file.IsOpen()) return {InPlace::Kept, errno};
  const std::optional<std::string> old = ReadAll(file.Number());
  if (!old) return {InPlace::Kept, errno};

  if (const int error = MakeRoom(file.Number(), text.size()); error != 0) {
    // Gives back what room there was.
    Truncate(file.Number(), old->size());
    return {InPlace::Kept, error};
  }
  const Progress done = Overwrite(file.Number(), text, old->size());
  if (done.Error == 0) return {InPlace::Written, 0};
  const bool whole = PutBack(file.Number(), *old, done);
  return {whole ? InPlace::Kept : InPlace::Damaged, done.Error};
}

}  // namespace terramark
