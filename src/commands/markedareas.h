// The marked Areas, for the commands that use marks.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace terramark {

struct Form1;

/// The Areas whose markers show a mark, by number. The current Area is not one of them.
std::vector<std::int16_t> CollectMarkedAreas(Form1& form);

/// Two-digit numbers with commas between them, as "03,07,12".
std::string NumberList(const std::vector<std::int16_t>& areas);

}  // namespace terramark
