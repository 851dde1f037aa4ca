#include "files/inplace.h"

#include <algorithm>
#include <string>

#include "files/openfile.h"
#include "files/readbytes.h"
#include "files/writeall.h"

namespace terramark::files {

namespace {

constexpr std::uintmax_t MaxKept = std::uintmax_t{64} << 20;

/// Reads the whole file. One that is too large to keep in memory is refused.
Result<std::string> ReadAll(const OpenedFile& file) {
  if (file.Size > MaxKept) return Failed(FileTooLarge);
  const auto size = static_cast<std::size_t>(file.Size);
  auto bytes = ReadBytes(file.File.Number(), size);
  // It is being cut short just now.
  if (bytes && bytes->size() != size) return Failed(InputOutputError);
  return bytes;
}

/// How far overwriting the old bytes came.
struct Progress {
  Written Text;
  bool Cut = false;  // what the old text had beyond the new one
  int Error = 0;
};

Progress Overwrite(FileNumber file, std::string_view text, std::size_t oldSize) {
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

bool PutBack(FileNumber file, std::string_view old, const Progress& done) {
  const std::size_t gone = done.Text.Bytes;
  if (gone == 0 && !done.Cut) return true;
  const std::size_t put = WriteAll(file, old).Bytes;
  const bool sized = gone <= old.size() || Truncate(file, old.size()) == 0;
  // The bytes that were not overwritten are still those of the old text, and writing them would
  // fail at the same place of the disk.
  const std::size_t lost = done.Cut ? old.size() : std::min(gone, old.size());
  return put >= lost && sized && Flush(file) == 0;
}

tl::unexpected<InPlaceFault> Kept(Fault why) {
  return tl::unexpected(InPlaceFault{why});
}

}  // namespace

tl::expected<void, InPlaceFault> WriteInPlace(const std::filesystem::path& path,
                                              std::string_view text) {
  const auto opened = OpenToOverwrite(path);
  if (!opened) return Kept(opened.error());
  const FileNumber file = opened->File.Number();
  const Result<std::string> old = ReadAll(*opened);
  if (!old) return Kept(old.error());

  // So that a full disk fails before any byte of the old text is overwritten.
  if (const int error = Reserve(file, text.size()); error != 0) {
    // Frees the space that was reserved beyond the old text.
    Truncate(file, old->size());
    return Kept(Fault(error));
  }
  const Progress done = Overwrite(file, text, old->size());
  if (done.Error == 0) return {};
  return tl::unexpected(InPlaceFault{Fault(done.Error), !PutBack(file, *old, done)});
}

}  // namespace terramark::files
