#include "files/inplace.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <string>

#include "files/descriptor.h"
#include "files/readbytes.h"
#include "files/writeall.h"

namespace terramark::files {

namespace {

constexpr off_t MaxKept = off_t{64} << 20;

/// Reads the whole file. One that is not regular, or too large to keep in memory, is refused.
Result<std::string> ReadAll(int file) {
  struct stat status {};
  const int error = ErrorOf([&] { return ::fstat(file, &status); });
  if (error != 0) return Failed(error);
  if (!S_ISREG(status.st_mode)) return Failed(EINVAL);
  if (status.st_size > MaxKept) return Failed(EFBIG);
  const auto size = static_cast<std::size_t>(status.st_size);
  auto bytes = ReadBytes(file, size);
  if (bytes && bytes->size() != size) return Failed(EIO);  // it is being cut short just now
  return bytes;
}

/// All functions below return 0 or an errno.
int Truncate(int file, std::size_t size) {
  return ErrorOf([&] { return ::ftruncate(file, static_cast<off_t>(size)); });
}

/// Reserves the disk space, so that a full disk fails before any byte of the old text is
/// overwritten. The size of the file stays. Where space cannot be reserved, writing will find out.
int MakeRoom(int file, std::size_t size) {
  if (size == 0) return 0;
  const auto length = static_cast<off_t>(size);
  const int error = ErrorOf([&] { return ::fallocate(file, FALLOC_FL_KEEP_SIZE, 0, length); });
  return error == EOPNOTSUPP || error == ENOSYS || error == EINVAL ? 0 : error;
}

/// How far overwriting the old bytes came.
struct Progress {
  Written Text;
  bool Cut = false;  // what the old text had beyond the new one
  int Error = 0;
};

Progress Overwrite(int file, std::string_view text, std::size_t oldSize) {
  Progress done{.Text = WriteAll(file, text)};
  done.Error = done.Text.Error;
  // A file that already has the right size is not truncated: that could only fail.
  if (done.Error == 0 && text.size() < oldSize) {
    done.Error = Truncate(file, text.size());
    done.Cut = done.Error == 0;
  }
  if (done.Error == 0) done.Error = Flush(file);
  return done;
}

bool PutBack(int file, std::string_view old, const Progress& done) {
  const std::size_t gone = done.Text.Bytes;
  if (gone == 0 && !done.Cut) return true;
  const std::size_t put = WriteAll(file, old).Bytes;
  const bool sized = gone <= old.size() || Truncate(file, old.size()) == 0;
  // The bytes that were not overwritten are still those of the old text, and writing them would
  // fail at the same place of the disk.
  const std::size_t lost = done.Cut ? old.size() : std::min(gone, old.size());
  return put >= lost && sized && Flush(file) == 0;
}

}  // namespace

InPlaceResult WriteInPlace(const std::filesystem::path& path, std::string_view text) {
  const Descriptor file(
      Uninterrupted([&] { return ::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC); }));
  if (!file.IsOpen()) return {InPlace::Kept, errno};
  const Result<std::string> old = ReadAll(file.Number());
  if (!old) return {InPlace::Kept, old.error().Error()};

  if (const int error = MakeRoom(file.Number(), text.size()); error != 0) {
    // Frees the space that was reserved beyond the old text.
    Truncate(file.Number(), old->size());
    return {InPlace::Kept, error};
  }
  const Progress done = Overwrite(file.Number(), text, old->size());
  if (done.Error == 0) return {InPlace::Written, 0};
  const bool whole = PutBack(file.Number(), *old, done);
  return {whole ? InPlace::Kept : InPlace::Damaged, done.Error};
}

}  // namespace terramark::files
