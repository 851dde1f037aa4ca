#include "shell/colourtarget.h"

#include <string>

#include "document/numbers.h"
#include "shell/colours.h"
#include "shell/form1.h"

namespace terramark {

namespace {

constexpr char NoTarget[] = "-1";
constexpr char RegionMark = 'R';

std::int16_t NumberIn(const std::string& text) {
  return WholeNumber(ReadNumber(text)).value_or(0);
}

std::string TagOf(ColourTarget target) {
  switch (target.Of) {
    case ColourTarget::Kind::Player:
      return PlainNumber(target.Number);
    case ColourTarget::Kind::Region:
      return RegionMark + PlainNumber(target.Number);
    case ColourTarget::Kind::None:
      break;
  }
  return NoTarget;
}

}  // namespace

void ShowPlayerColours(Form1& form) {
  for (std::int16_t row = 0; row < PlayerColours; ++row) {
    form.PlColor(row).BackColor = ColourOf(form.PlayerRGB[static_cast<std::size_t>(row)]);
  }
}

ColourTarget TargetOf(const Form1& form) {
  const std::string& tag = form.RGBFrame.Tag;
  if (tag.empty() || tag == NoTarget) return {};
  if (tag[0] == RegionMark) return {ColourTarget::Kind::Region, NumberIn(tag.substr(1))};
  return {ColourTarget::Kind::Player, NumberIn(tag)};
}

void SetColourTarget(Form1& form, ColourTarget target) {
  form.RGBFrame.Enabled = target.Of != ColourTarget::Kind::None;
  form.RGBFrame.Tag = TagOf(target);
}

}  // namespace terramark
