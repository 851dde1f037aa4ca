#include "pictures/lastpicture.h"

#include "files/regularfile.h"
#include "pictures/pictureloader.h"

namespace terramark::pictures {

forms::LoadedPicture LastPicture::Load(const std::filesystem::path& path, int boxWidth,
                                       int boxHeight) {
  const files::Moment now = files::Moment::Now();
  const auto file = files::RegularFile::Open(path);
  if (!file) return tl::unexpected(file.error().Description());
  const auto version = file->Version();
  if (!version) return tl::unexpected(version.error().Description());
  const Source source{*version, boxWidth, boxHeight};
  if (source == source_) {
    if (forms::Picture picture = picture_.lock()) return picture;
  }
  source_.reset();
  forms::LoadedPicture loaded = LoadPictureFile(*file, boxWidth, boxHeight);
  picture_ = loaded.value_or(nullptr);
  // A file that changed while it was read may give a mix of both versions.
  if (version->SettledBy(now) && file->Version() == *version) source_ = source;
  return loaded;
}

}  // namespace terramark::pictures
