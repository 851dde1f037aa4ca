// The main window: the document's tables, the editor's state and all controls.
#pragma once

#include <cstdint>
#include <string>

#include "document/tables.h"
#include "forms/controlarray.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "forms/picturebox.h"

namespace terramark {

struct Form1 : forms::Form, Tables {
  /// Builds the controls from the control table. Form_Load then brings the editor up.
  explicit Form1(forms::Desktop& host);

  // Twips per screen pixel in whole numbers; from a place inside a marker to pixels.
  std::int16_t TwipsX = 0;
  std::int16_t TwipsY = 0;
  // Where a drag took hold of a marker, in pixels from its corner.
  std::int16_t DragOffX = 0;
  std::int16_t DragOffY = 0;
  // What is current, 0 for none. A number may outlive its marker: look with Find before use.
  std::int16_t CurArea = 0;
  std::int16_t CurRegion = 0;
  // Running count of marks; raised and lowered by gestures, not derived from the markers.
  std::int16_t MarkCount = 0;
  // The marked Areas found by Swap Territories, from element 1 on.
  Table<std::int16_t> MarkedAreas;
  // The text of Armypc before the key now being pressed.
  std::string ArmypcLast;
  // Path of the layout last opened or saved.
  std::string LayoutFile;
  std::string HelpFile;
  // The colour composed on the scroll bars, and what holds them still while the panel moves them.
  forms::Color SliderColour = 0;
  std::int16_t SliderLock = 0;
  static constexpr std::int16_t LockOn = 1;
  static constexpr std::int16_t LockOff = 0;

  forms::CommonDialog CommonDialog1;

  // Inspector and bars
  forms::TextBox Text1;
  forms::TextBox EditText;
  forms::TextBox Symb;
  forms::TextBox Armypc;
  forms::Label Message;
  forms::Label Helpbar;

  // Canvas
  forms::PictureBox Picture1;
  forms::ControlArray<forms::Label> ArmyAt;
  forms::ControlArray<forms::Label> Continent;

  // Colour panel
  forms::Frame Frame3D1;
  forms::ControlArray<forms::CommandButton> PlColor;
  forms::Frame RGBFrame;
  forms::ControlArray<forms::VScrollBar> ColBar;

  // Counts and captions
  forms::Frame Frame1;
  forms::ControlArray<forms::Label> Countx;
  forms::ControlArray<forms::Label> Label1;

  // Commands
  forms::CommandButton LoadMpa;
  forms::CommandButton LoadMap;
  forms::CommandButton Cvalid;
  forms::CommandButton SaveCFG;
  forms::CommandButton DelAll;
  forms::CommandButton TMHelp;
  forms::CommandButton DBPush1;
  forms::CommandButton RefMap;
  forms::CommandButton SwapTer;
  forms::CommandButton ClearLink;
  forms::CommandButton DelControl;
  forms::CommandButton AddTer;
  forms::CommandButton AddCont;
  forms::CommandButton MakeNeibor;
  forms::CommandButton SetCont;
  forms::CommandButton Quit;
};

}  // namespace terramark
