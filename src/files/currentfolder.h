// The current folder, where relative paths begin.
#pragma once

#include <filesystem>

namespace terramark::files {

/// Makes the folder of a file the current one. A path without a folder changes nothing, and neither
/// does a folder that cannot be entered.
void EnterFolderOf(const std::filesystem::path& file);

}  // namespace terramark::files
