// The help viewer's table: what each topic of the help file is about.
#pragma once

#include <cstdint>

namespace terramark::window {

struct HelpTopic {
  std::int32_t Number;
  const char* Subject;
};

/// Null for a number that is no topic.
const HelpTopic* FindHelpTopic(std::int32_t number);

}  // namespace terramark::window
