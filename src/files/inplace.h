// Overwrites a file that cannot be replaced, and restores its old bytes when that fails.
#pragma once

#include <filesystem>
#include <string_view>
#include <tl/expected.hpp>

#include "files/fault.h"

namespace terramark::files {

struct InPlaceFault {
  Fault Why;             // what stopped the writing
  bool Damaged = false;  // the old bytes could not be put back; otherwise the file is as it was
};

/// Makes the text the file's content. Keeps the old bytes in memory meanwhile. A file that cannot
/// be read, or that has more than 64 MiB, is therefore not written. A process that is killed in the
/// middle leaves a mix of old and new bytes.
tl::expected<void, InPlaceFault> WriteInPlace(const std::filesystem::path& path,
                                              std::string_view text);

}  // namespace terramark::files
