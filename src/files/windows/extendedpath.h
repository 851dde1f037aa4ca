// Names of files in the form that Windows takes as they stand.
#pragma once

#include <filesystem>
#include <string>

#include "files/fault.h"

namespace terramark::files {

/// The full name of a path, behind `\\?\`: it may have some 32,000 characters instead of 259. A
/// relative path begins in the current folder. Refuses, by the name alone and before anything is
/// opened, what is no plain file on any Windows: devices (`CON`, `\\.\...`), also with an ending,
/// and pipes. A colon is refused except behind the letter of a drive, since it would mean a hidden
/// stream of a file.
Result<std::wstring> ExtendedPath(const std::filesystem::path& path);

}  // namespace terramark::files
