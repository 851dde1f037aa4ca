// The marked Areas as the commands that take marks read and name them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace terramark {

struct Form1;

/// The Areas that look marked, by rising number. The look of the current Area does not count.
std::vector<std::int16_t> CollectMarkedAreas(Form1& form);

/// Two-digit numbers with commas between them, as "03,07,12".
std::string NumberList(const std::vector<std::int16_t>& areas);

}  // namespace terramark
