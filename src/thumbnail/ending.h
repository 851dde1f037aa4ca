// How the program ends: with a thumbnail, or with a word why there is none.
#pragma once

#include <string_view>

namespace terramark::thumbnail {

/// Statuses of the program beside 0.
inline constexpr int NoThumbnail = 1;
inline constexpr int UsageError = 2;

/// Ends the program with NoThumbnail, with one line on the standard error that says why. A handler
/// of a signal may call it.
[[noreturn]] void Refuse(std::string_view why);

}  // namespace terramark::thumbnail
