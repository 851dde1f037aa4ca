#include "commands/markedareas.h"

#include "document/numbers.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

std::vector<std::int16_t> CollectMarkedAreas(Form1& form) {
  std::vector<std::int16_t> areas;
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    if (MarkerStateOf(form.ArmyAt(i)) == MarkerState::Marked) areas.push_back(i);
  }
  return areas;
}

std::string NumberList(const std::vector<std::int16_t>& areas) {
  std::string list;
  for (const std::int16_t area : areas) {
    if (!list.empty()) list += ',';
    list += TwoDigit(area);
  }
  return list;
}

}  // namespace terramark
