#include "files/readbytes.h"

#include <sys/types.h>
#include <unistd.h>

#include "files/descriptor.h"

namespace terramark::files {

Result<std::size_t> ReadInto(int file, std::uintmax_t offset, std::span<char> room) {
  std::size_t done = 0;
  while (done < room.size()) {
    const auto at = static_cast<off_t>(offset + done);
    const ssize_t got =
        Uninterrupted([&] { return ::pread(file, room.data() + done, room.size() - done, at); });
    if (got < 0) return Failed(errno);
    if (got == 0) break;
    done += static_cast<std::size_t>(got);
  }
  return done;
}

Result<std::string> ReadBytes(int file, std::size_t most) {
  std::string bytes(most, '\0');
  const Result<std::size_t> got = ReadInto(file, 0, bytes);
  if (!got) return tl::unexpected(got.error());
  bytes.resize(*got);
  return bytes;
}

}  // namespace terramark::files
