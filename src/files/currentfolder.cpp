#include "files/currentfolder.h"

#include <system_error>

namespace terramark::files {

void EnterFolderOf(const std::filesystem::path& file) {
  std::error_code ignored;
  std::filesystem::current_path(file.parent_path(), ignored);
}

}  // namespace terramark::files
