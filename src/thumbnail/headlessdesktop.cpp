#include "thumbnail/headlessdesktop.h"

#include <unistd.h>

#include <memory>

#include "files/currentfolder.h"
#include "files/regularfile.h"
#include "paint/cp1252.h"
#include "paint/lettering.h"
#include "pictures/pictureloader.h"
#include "thumbnail/ending.h"

namespace terramark::thumbnail {

forms::Answer HeadlessDesktop::MsgBox(const std::string& text, forms::Buttons /*buttons*/,
                                      const std::string& /*title*/) {
  Refuse(paint::InSystemEncoding(text));
}

forms::TextExtent HeadlessDesktop::MeasureText(const std::string& text) {
  return paint::ExtentOf(text, *this);
}

forms::LoadedPicture HeadlessDesktop::LoadPicture(const std::string& path, int width, int height) {
  if (path.empty()) return std::make_shared<forms::Raster>();
  const auto file = files::RegularFile::Open(NativePath(path));
  if (!file) return tl::unexpected(file.error().Description());
  return pictures::LoadPictureFile(*file, width, height);
}

std::string HeadlessDesktop::NativePath(const std::string& path) {
  return paint::InSystemEncoding(path);
}

void HeadlessDesktop::EnterFolderOf(const std::string& path) {
  files::EnterFolderOf(NativePath(path));
}

void HeadlessDesktop::End(int status) {
  _exit(status);
}

}  // namespace terramark::thumbnail
