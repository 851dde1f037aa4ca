// The path that a name means.
#pragma once

#include <filesystem>
#include <string>

namespace terramark::files {

/// The path of a name as Desktop::NativePath gives it and as a layout's text has it after ToUtf8:
/// in UTF-8. On Windows, whose names are UTF-16, bytes that are no UTF-8 become the replacement
/// character; elsewhere the bytes are the path.
std::filesystem::path PathOf(const std::string& name);

}  // namespace terramark::files
