#include "window/helptopics.h"

#include <algorithm>
#include <array>

namespace terramark::window {

namespace {

// clang-format off
constexpr std::array<HelpTopic, 11> Topics{{
    // no  subject                          opened by
    { 2,  "Terramark",                     "the button Help"},
    { 7,  "Validating a map",              "the button Validate Map"},
    { 8,  "Refreshing the map",            "the button Refresh map"},
    { 9,  "Adding and deleting Areas",     "the buttons Add Area and Delete"},
    {10,  "Links between Areas",           "the buttons Set Neighbours and Clear all Links"},
    {11,  "Regions",                       "the buttons Add Region and Set Region"},
    {12,  "Card symbols",                  "the box for the card symbol"},
    {13,  "Swapping territories",          "the button Swap Territories"},
    {14,  "Colours",                       "the frames Colours and RGB and the buttons in them"},
    {15,  "Map Layouts and pictures",      "the buttons that load, save and clear, and the header line"},
    {16,  "Armies of a Region",            "the box for the armies"},
}};
// clang-format on

}  // namespace

const HelpTopic* FindHelpTopic(std::int32_t number) {
  const auto* const topic =
      std::find_if(Topics.begin(), Topics.end(),
                   [number](const HelpTopic& row) { return row.Number == number; });
  return topic == Topics.end() ? nullptr : topic;
}

}  // namespace terramark::window
