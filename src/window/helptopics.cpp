#include "window/helptopics.h"

#include <algorithm>
#include <iterator>

namespace terramark::window {

namespace {

constexpr HelpTopic Topics[] = {
    {2, "Terramark"},
    {7, "Validating a map"},
    {8, "Refreshing the map"},
    {9, "Adding and deleting Areas"},
    {10, "Links between Areas"},
    {11, "Regions"},
    {12, "Card symbols"},
    {13, "Swapping territories"},
    {14, "Colours"},
    {15, "Map Layouts and pictures"},
    {16, "Armies of a Region"},
};

}  // namespace

const HelpTopic* FindHelpTopic(std::int32_t number) {
  const auto* const topic = std::ranges::find(Topics, number, &HelpTopic::Number);
  return topic == std::end(Topics) ? nullptr : topic;
}

}  // namespace terramark::window
