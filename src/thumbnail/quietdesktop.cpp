#include "thumbnail/quietdesktop.h"

#include <unistd.h>

#include <memory>

#include "files/currentfolder.h"
#include "files/regularfile.h"
#include "paint/cp1252.h"
#include "paint/lettering.h"
#include "pictures/pictureloader.h"
#include "thumbnail/ending.h"

namespace terramark::thumbnail {

forms::Answer QuietDesktop::MsgBox(const std::string& text, forms::Buttons /*buttons*/,
                                   const std::string& /*title*/) {
  Refuse(paint::InSystemEncoding(text));
}

forms::TextExtent QuietDesktop::MeasureText(const std::string& text) {
  return paint::ExtentOf(text, *this);
}

forms::LoadedPicture QuietDesktop::LoadPicture(const std::string& path, int width, int height) {
  if (path.empty()) return std::make_shared<forms::Raster>();
  const auto file = files::RegularFile::Open(NativePath(path));
  if (!file) return tl::unexpected(file.error().Words());
  return pictures::LoadPictureFile(*file, width, height);
}

std::string QuietDesktop::NativePath(const std::string& path) {
  return paint::InSystemEncoding(path);
}

void QuietDesktop::EnterFolderOf(const std::string& path) {
  files::EnterFolderOf(NativePath(path));
}

void QuietDesktop::End(int status) {
  _exit(status);
}

}  // namespace terramark::thumbnail
