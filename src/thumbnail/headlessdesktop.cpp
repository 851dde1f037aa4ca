#include "thumbnail/headlessdesktop.h"

#include <unistd.h>

#include <memory>

#include "document/codepage.h"
#include "files/currentfolder.h"
#include "files/pathof.h"
#include "files/regularfile.h"
#include "paint/lettering.h"
#include "pictures/pictureloader.h"
#include "thumbnail/ending.h"

namespace terramark::thumbnail {

forms::Answer HeadlessDesktop::MsgBox(const std::string& text, forms::Buttons /*buttons*/,
                                      const std::string& /*title*/) {
  Refuse(ToUtf8(text));
}

forms::TextExtent HeadlessDesktop::MeasureText(const std::string& text) {
  return paint::ExtentOf(text, *this);
}

forms::LoadedPicture HeadlessDesktop::LoadPicture(const std::string& path, int width, int height) {
  if (path.empty()) return std::make_shared<forms::Raster>();
  const auto file = files::RegularFile::Open(files::PathOf(NativePath(path)));
  if (!file) return tl::unexpected(file.error().Description());
  return pictures::LoadPictureFile(*file, width, height);
}

std::string HeadlessDesktop::NativePath(const std::string& path) {
  return ToUtf8(path);
}

void HeadlessDesktop::EnterFolderOf(const std::string& path) {
  files::EnterFolderOf(files::PathOf(NativePath(path)));
}

void HeadlessDesktop::End(int status) {
  _exit(status);
}

}  // namespace terramark::thumbnail
