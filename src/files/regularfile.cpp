#include "files/regularfile.h"

#include <algorithm>

#include "files/readbytes.h"

namespace terramark::files {

namespace {

/// Whether a name begins with two separators. The standard library on Windows does not take such a
/// name for an absolute path, and would join it to a folder.
bool IsInNetwork(const std::filesystem::path& name) {
  const auto isSeparator = [](auto unit) {
    return unit == '/' || unit == std::filesystem::path::preferred_separator;
  };
  const auto& units = name.native();
  return units.size() > 1 && isSeparator(units[0]) && isSeparator(units[1]);
}

}  // namespace

Result<RegularFile> RegularFile::Open(const std::filesystem::path& path) {
  // The system would end the path at the NUL.
  constexpr std::filesystem::path::value_type Nul = 0;
  if (path.native().find(Nul) != std::filesystem::path::string_type::npos) {
    return Failed(NoSuchFile);
  }
  auto opened = OpenToRead(path);
  if (!opened) return tl::unexpected(opened.error());
  return RegularFile(*std::move(opened));
}

Result<std::string> RegularFile::Read(std::size_t most) const {
  const auto count = static_cast<std::size_t>(std::min<std::uintmax_t>(Size(), most));
  return ReadBytes(opened_.File.Number(), count);
}

Result<std::size_t> RegularFile::ReadAt(std::uintmax_t offset, std::span<char> room) const {
  return ReadInto(opened_.File.Number(), offset, room);
}

Result<std::string> ReadRegularFile(const std::filesystem::path& path, std::size_t most) {
  return RegularFile::Open(path).and_then([&](const auto& file) { return file.Read(most); });
}

bool CanOpenNamedFile(const std::filesystem::path& namedBy, const std::filesystem::path& name) {
  return RegularFile::Open(IsInNetwork(name) ? name : namedBy.parent_path() / name).has_value();
}

}  // namespace terramark::files
