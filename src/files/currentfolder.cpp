#include "files/currentfolder.h"

#include <filesystem>
#include <system_error>

namespace terramark::files {

void EnterFolderOf(const std::string& file) {
  std::error_code ignored;
  std::filesystem::current_path(std::filesystem::path(file).parent_path(), ignored);
}

}  // namespace terramark::files
