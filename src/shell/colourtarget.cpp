#include "shell/colourtarget.h"

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
  const std::string number = PlainNumber(target.Number);
  form.RGBFrame.Enabled = true;
  form.RGBFrame.Tag = target.Of == ColourTarget::Kind::Region ? RegionMark + number : number;
}

void ForgetColourTarget(Form1& form) {
  form.RGBFrame.Enabled = false;
  form.RGBFrame.Tag = NoTarget;
}

}  // namespace terramark
