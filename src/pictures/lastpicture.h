// The picture loaded last, which is given again as long as somebody shows it and its file stays as
// it is: loading the same file anew costs no decoding.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "files/fileversion.h"
#include "forms/raster.h"

namespace terramark::pictures {

class LastPicture {
 public:
  /// What LoadPictureFile gives, and the very object that it gave last when that is still held
  /// elsewhere, the box is the same and the file, under whatever name, has not changed.
  forms::LoadedPicture Load(const std::filesystem::path& path, int boxWidth, int boxHeight);

 private:
  /// What a picture is decoded from: a metafile is drawn for its box.
  struct Source {
    files::FileVersion File;
    int BoxWidth = 0;
    int BoxHeight = 0;

    bool operator==(const Source&) const = default;
  };

  std::optional<Source> source_;
  std::weak_ptr<const forms::Raster> picture_;
};

}  // namespace terramark::pictures
