#include "shell/startup.h"

#include <array>

#include "document/numbers.h"
#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/colourtarget.h"
#include "shell/form1.h"
#include "shell/markers.h"
#include "shell/questions.h"

namespace terramark {

namespace {

constexpr char Banner[] = "Terramark 1 - Map Layout editor, by the Terramark developers";

/// The stored default of full intensity is 256, not 255.
constexpr auto DefaultPlayerRGB = std::to_array<Components>({
    // red green blue
    {0, 256, 0},      // Player1
    {256, 0, 0},      // Player2
    {256, 256, 0},    // Player3
    {125, 125, 125},  // Neutral
});

}  // namespace

void Form_Load(Form1& form) {
  form.KeyPreview = true;
  form.AreaCount = 0;
  form.RegionCount = 0;
  form.MarkCount = 0;
  form.Move(0, 0);
  form.RGBFrame.Enabled = false;
  form.PlayerRGB = DefaultPlayerRGB;
  ShowPlayerColours(form);
  form.PlColor(RegionButton).Enabled = false;

  form.ArmyAt(0).Visible = false;
  form.ArmyAt(0).Height = AreaMarkerHeight;
  form.ArmyAt(0).Width = AreaMarkerWidth;
  form.AreaName(0) = UnknownName;

  form.Continent(0).Height = RegionMarkerHeight;
  form.Continent(0).Visible = false;
  SetOwnColour(form.Continent(0), ClrWhite, TagForm::WithBlank);
  form.RegionName(0) = UnknownName;

  form.TwipsX = WholeNumber(form.Host.TwipsPerPixelX()).value_or(1);
  form.TwipsY = WholeNumber(form.Host.TwipsPerPixelY()).value_or(1);
  ShowMessage(form, Banner, ClrGreen);
  UpdateCounts(form);
}

void Quit_Click(Form1& form) {
  if (Confirm(form, "Exit Terramark")) form.Host.End(0);
}

void Form_Unload(Form1& form) {
  form.Host.End(0);
}

}  // namespace terramark
