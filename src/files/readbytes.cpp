#include "files/readbytes.h"

#include "files/openfile.h"

namespace terramark::files {

Result<std::size_t> ReadInto(FileNumber file, std::uintmax_t offset, std::span<char> room) {
  std::size_t done = 0;
  while (done < room.size()) {
    const auto got = ReadSome(file, offset + done, room.subspan(done));
    if (!got) return got;
    if (*got == 0) break;
    done += *got;
  }
  return done;
}

Result<std::string> ReadBytes(FileNumber file, std::size_t most) {
  std::string bytes(most, '\0');
  const Result<std::size_t> got = ReadInto(file, 0, bytes);
  if (!got) return tl::unexpected(got.error());
  bytes.resize(*got);
  return bytes;
}

}  // namespace terramark::files
