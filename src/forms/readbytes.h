// Reading from an open file.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace terramark::forms {

/// The file's bytes from its start on, at most so many, and fewer where it ends. Nothing when a
/// read fails: a disk's fault does not look like a short file.
std::optional<std::string> ReadBytes(int file, std::size_t most);

}  // namespace terramark::forms
