#include "shell/filenames.h"

#include <filesystem>
#include <fstream>

#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"

namespace terramark {

void SelectAFile(Form1& form, const std::string& filt, std::string& s) {
  forms::CommonDialog& dialog = form.CommonDialog1;
  dialog.Filter = filt;
  dialog.FileName = filt;
  dialog.FileNameFits = true;
  form.Host.ShowOpen(dialog);
  s = dialog.FileName;
  if (s == filt) s.clear();
  if (!dialog.FileNameFits) {
    ShowMessage(form, "Cannot use this file name in a Map Layout: " + s, ClrRed);
    s.clear();
  }
}

std::int16_t FileExists(Form1& form, const std::string& path) {
  const std::filesystem::path native = form.Host.NativePath(path);
  std::error_code ignored;
  // A folder opens like a file here but holds nothing to read, and a pipe may never open.
  if (!std::filesystem::is_regular_file(native, ignored)) return 0;
  return std::ifstream(native).is_open() ? 1 : 0;
}

}  // namespace terramark
