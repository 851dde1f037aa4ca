// What a thumbnail may cost, and how the program ends without one.
#pragma once

#include <string>

namespace terramark::thumbnail {

/// Statuses of the program beside 0.
inline constexpr int NoThumbnail = 1;
inline constexpr int WrongUse = 2;

/// Ends the program with NoThumbnail, with one line on the standard error that says why.
[[noreturn]] void Refuse(const std::string& why);

/// From now on the program ends by Refuse: after less than two seconds, whatever it waits for, and
/// when it takes more memory than the largest picture needs. Before any thread is started.
void LimitCost();

}  // namespace terramark::thumbnail
