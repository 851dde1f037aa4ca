#include "files/writeall.h"

#include <sys/types.h>
#include <unistd.h>

#include "files/descriptor.h"

namespace terramark::files {

Written WriteAll(int file, std::string_view text) {
  Written done;
  while (done.Bytes < text.size()) {
    const std::string_view rest = text.substr(done.Bytes);
    const auto at = static_cast<off_t>(done.Bytes);
    const ssize_t written =
        Uninterrupted([&] { return ::pwrite(file, rest.data(), rest.size(), at); });
    if (written < 0) done.Error = errno;
    if (written == 0) done.Error = EIO;  // no reason is given
    if (written <= 0) break;
    done.Bytes += static_cast<std::size_t>(written);
  }
  return done;
}

int Flush(int file) {
  return ErrorOf([&] { return ::fsync(file); });
}

}  // namespace terramark::files
