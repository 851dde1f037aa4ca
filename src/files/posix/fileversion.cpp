#include "files/fileversion.h"

#include <sys/stat.h>

#include "files/posix/calls.h"

namespace terramark::files {

Result<FileVersion> VersionOf(FileNumber file) {
  const auto moment = [](const timespec& time) { return Moment{time.tv_sec, time.tv_nsec}; };
  struct stat status {};
  const int error = ErrorOf([&] { return ::fstat(Native(file), &status); });
  if (error != 0) return Failed(error);
  return FileVersion{status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
                     moment(status.st_mtim), moment(status.st_ctim)};
}

}  // namespace terramark::files
