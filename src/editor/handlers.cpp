#include "editor/handlers.h"

#include "canvas/canvaskeys.h"
#include "canvas/colourpanel.h"
#include "canvas/markerdescription.h"
#include "canvas/markermouse.h"
#include "editor/backdroppress.h"
#include "editor/formkeys.h"
#include "editor/hover.h"
#include "editor/presses.h"
#include "selection/arrowkeys.h"
#include "selection/inspector.h"
#include "shell/form1.h"
#include "shell/startup.h"

namespace terramark {

namespace {

void ConnectInspector(Form1& form) {
  form.EditText.Change = [&form](const auto&) { EditText_Change(form); };
  form.Symb.Change = [&form](const auto&) { Symb_Change(form); };
  form.Armypc.Change = [&form](const auto&) { Armypc_Change(form); };
  form.Armypc.KeyDown = [&form](const auto&) { Armypc_KeyDown(form); };
  form.Armypc.KeyPress = [&form](const auto&) { Armypc_KeyPress(form); };
}

/// Set on the templates; the markers that are loaded from them copy the slots.
void ConnectMarkers(Form1& form) {
  forms::Label& area = form.ArmyAt(0);
  area.MouseDown = [&form](const auto& event) { ArmyAt_MouseDown(form, event); };
  area.MouseUp = [&form](const auto& event) { ArmyAt_MouseUp(form, event); };
  area.DragDrop = [&form](const auto& event) { ArmyAt_DragDrop(form, event); };
  area.AccessibleNameOf = [&form](std::int16_t index) { return AreaDescription(form, index); };
  area.AccessibleDescriptionOf = [&form](std::int16_t index) {
    return FillCornerText(form, index);
  };
  forms::Label& region = form.Continent(0);
  region.MouseDown = [&form](const auto& event) { Continent_MouseDown(form, event); };
  region.MouseUp = [&form](const auto& event) { Continent_MouseUp(form, event); };
  region.DragDrop = [&form](const auto& event) { Continent_DragDrop(form, event); };
  region.AccessibleNameOf = [&form](std::int16_t index) { return RegionDescription(form, index); };
}

void ConnectBackdrop(Form1& form) {
  form.Picture1.MouseUp = [&form](const auto& event) { Picture1_MouseUp(form, event); };
  form.Picture1.DragDrop = [&form](const auto& event) { Picture1_DragDrop(form, event); };
  form.Picture1.GotFocus = [&form](const auto&) { Picture1_GotFocus(form); };
  form.Picture1.KeyDown = [&form](auto& event) { Picture1_KeyDown(form, event); };
}

void ConnectColourPanel(Form1& form) {
  form.PlColor.ForEach([&form](forms::CommandButton& button) {
    button.Click = [&form](const auto& event) { PlColor_Click(form, event); };
  });
  form.ColBar.ForEach([&form](forms::VScrollBar& bar) {
    bar.Change = [&form](const auto&) { ColBar_Change(form); };
  });
}

}  // namespace

void ConnectHandlers(Form1& form) {
  ConnectPresses(form);
  ConnectHover(form);
  ConnectInspector(form);
  ConnectMarkers(form);
  ConnectBackdrop(form);
  ConnectColourPanel(form);
  form.KeyDown = [&form](auto& event) { Form_KeyDown(form, event); };
  form.KeyUp = [&form](const auto& event) { Form_KeyUp(form, event); };
  form.Quit.Click = [&form](const auto&) { Quit_Click(form); };
}

}  // namespace terramark
