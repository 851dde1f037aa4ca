#include "pictures/lastpicture.h"

#include "forms/regularfile.h"
#include "pictures/pictureloader.h"

namespace terramark::pictures {

forms::LoadedPicture LastPicture::Load(const std::filesystem::path& path, int boxWidth,
                                       int boxHeight) {
  const forms::Moment now = forms::Moment::Now();
  const forms::RegularFile file(path);
  const auto version = file.Version();
  if (!version) return {nullptr, file.Why()};
  const Source source{*version, boxWidth, boxHeight};
  if (source == source_) {
    if (forms::Picture picture = picture_.lock()) return {picture, {}};
  }
  source_.reset();
  forms::LoadedPicture loaded = LoadPictureFile(file, boxWidth, boxHeight);
  picture_ = loaded.Picture;
  // One that changes while it is read may give a picture of neither version.
  if (version->SettledBy(now) && file.Version() == version) source_ = source;
  return loaded;
}

}  // namespace terramark::pictures
