#include "thumbnail/quietdesktop.h"

#include <unistd.h>

#include <system_error>

#include "forms/regularfile.h"
#include "pictures/cp1252.h"
#include "pictures/lettering.h"
#include "pictures/pictureloader.h"
#include "thumbnail/ending.h"

namespace terramark::thumbnail {

QuietDesktop::QuietDesktop(const std::filesystem::path& layout)
    : layout_(layout), name_(pictures::FromSystemEncoding(layout)) {
}

forms::Answer QuietDesktop::MsgBox(const std::string& text, forms::Buttons /*buttons*/,
                                   const std::string& /*title*/) {
  Refuse(pictures::InSystemEncoding(text));
}

void QuietDesktop::ShowOpen(forms::CommonDialog& dialog) {
  dialog.FileName = name_;
}

forms::TextExtent QuietDesktop::MeasureText(const std::string& text) {
  return pictures::ExtentOf(text, *this);
}

forms::LoadedPicture QuietDesktop::LoadPicture(const std::string& path, int width, int height) {
  return pictures::LoadPictureFile(forms::RegularFile(NativePath(path)), width, height);
}

std::filesystem::path QuietDesktop::NativePath(const std::string& path) {
  if (path == name_) return layout_;
  return pictures::InSystemEncoding(path);
}

void QuietDesktop::EnterFolderOf(const std::string& path) {
  std::error_code ignored;
  std::filesystem::current_path(NativePath(path).parent_path(), ignored);
}

void QuietDesktop::End(int status) {
  _exit(status);
}

}  // namespace terramark::thumbnail
