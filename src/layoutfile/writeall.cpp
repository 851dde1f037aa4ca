#include "layoutfile/writeall.h"

#include <sys/types.h>
#include <unistd.h>

#include "forms/descriptor.h"

namespace terramark {

std::size_t WriteAll(int file, std::string_view text) {
  std::size_t done = 0;
  while (done < text.size()) {
    const ssize_t written = forms::Uninterrupted([&] {
      return ::pwrite(file, text.data() + done, text.size() - done, static_cast<off_t>(done));
    });
    if (written == 0) errno = EIO;  // no reason is given
    if (written <= 0) break;
    done += static_cast<std::size_t>(written);
  }
  return done;
}

bool Flush(int file) {
  return forms::Uninterrupted([&] { return ::fsync(file); }) == 0;
}

}  // namespace terramark
