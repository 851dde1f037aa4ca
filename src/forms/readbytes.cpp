#include "forms/readbytes.h"

#include <sys/types.h>
#include <unistd.h>

#include "forms/descriptor.h"

namespace terramark::forms {

std::optional<std::string> ReadBytes(int file, std::size_t most) {
  std::string bytes(most, '\0');
  std::size_t done = 0;
  while (done < most) {
    const ssize_t got = Uninterrupted(
        [&] { return ::pread(file, bytes.data() + done, most - done, static_cast<off_t>(done)); });
    if (got < 0) return std::nullopt;
    if (got == 0) break;
    done += static_cast<std::size_t>(got);
  }
  bytes.resize(done);
  return bytes;
}

}  // namespace terramark::forms
