// Overwrites a file that cannot be replaced, and restores its old bytes when that fails.
#pragma once

#include <filesystem>
#include <string_view>

namespace terramark::files {

enum class InPlace {
  Written,  // the text is the file's content
  Kept,     // the file is as it was
  Damaged,  // neither: the old bytes could not be put back
};

struct InPlaceResult {
  InPlace State;
  int Error;  // the errno that stopped the writing, 0 for none
};

/// Keeps the old bytes in memory meanwhile. A file that cannot be read, or that has more than 64
/// MiB, is therefore not written. A process that is killed in the middle leaves a mix of old and
/// new bytes.
InPlaceResult WriteInPlace(const std::filesystem::path& path, std::string_view text);

}  // namespace terramark::files
