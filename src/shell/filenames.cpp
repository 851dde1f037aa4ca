#include "shell/filenames.h"

#include "files/pathof.h"
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

std::filesystem::path FilePath(Form1& form, const std::string& name) {
  return files::PathOf(form.Host.NativePath(name));
}

std::size_t FolderLength(std::string_view name) {
  // Windows has two separators; elsewhere a backslash is part of a name.
  constexpr bool Backslash = std::filesystem::path::preferred_separator == '\\';
  return name.find_last_of(Backslash ? "/\\" : "/") + 1;
}

std::int16_t FileExists(Form1& form, const std::string& path) {
  return files::RegularFile::Open(FilePath(form, path)) ? 1 : 0;
}

}  // namespace terramark
