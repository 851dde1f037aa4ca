#include "layoutfile/filecalls.h"

#include <sys/types.h>
#include <unistd.h>

namespace terramark {

void Descriptor::Close() {
  // Never twice: even a closing that fails has given the number back.
  if (number_ >= 0) ::close(number_);
  number_ = -1;
}

std::size_t WriteAll(int file, std::string_view text) {
  std::size_t done = 0;
  while (done < text.size()) {
    const ssize_t written = Uninterrupted([&] {
      return ::pwrite(file, text.data() + done, text.size() - done, static_cast<off_t>(done));
    });
    if (written <= 0) break;
    done += static_cast<std::size_t>(written);
  }
  return done;
}

bool Flush(int file) {
  return Uninterrupted([&] { return ::fsync(file); }) == 0;
}

}  // namespace terramark
