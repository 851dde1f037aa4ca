// How the program ends: with a thumbnail, or with a message why there is none.
#pragma once

#include <string_view>

namespace terramark::thumbnail {

/// Exit statuses other than 0.
inline constexpr int NoThumbnail = 1;
inline constexpr int UsageError = 2;

/// Ends the program with NoThumbnail and one line on standard error that gives the reason. Signal
/// handlers may call it.
[[noreturn]] void Refuse(std::string_view why);

}  // namespace terramark::thumbnail
