#include "shell/filenames.h"

#include "files/regularfile.h"
#include "shell/form1.h"

namespace terramark {

void SelectAFile(Form1& form, const std::string& filt, std::string& s) {
  forms::CommonDialog& dialog = form.CommonDialog1;
  dialog.Filter = filt;
  dialog.FileName = filt;
  form.Host.ShowOpen(dialog);
  s = dialog.FileName;
  if (s == filt) s.clear();
}

std::int16_t FileExists(Form1& form, const std::string& path) {
  return files::RegularFile::Open(form.Host.NativePath(path)) ? 1 : 0;
}

}  // namespace terramark
