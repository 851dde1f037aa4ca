// The last loaded picture. It is returned again as long as it is shown and its file is unchanged,
// so that loading the same file again needs no decoding.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "files/fileversion.h"
#include "forms/raster.h"

namespace terramark::pictures {

class LastPicture {
 public:
  /// As LoadPictureFile. Returns the same object as the last time if that is still held elsewhere,
  /// the box has the same size and the file, under whatever name, has not changed.
  forms::LoadedPicture Load(const std::filesystem::path& path, int boxWidth, int boxHeight);

 private:
  /// What the picture depends on: a metafile is drawn for its box.
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
