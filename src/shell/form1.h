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

  // The current Area and Region, 0 for none. A number may remain after its marker is gone: use Find
  // before the marker.
  std::int16_t CurArea = 0;
  std::int16_t CurRegion = 0;
  // A running count of marks. Gestures change it; it is not derived from the markers.
  std::int16_t MarkCount = 0;
  // Path of the layout last opened or saved.
  std::string LayoutFile;

  // For the mouse on the markers (canvas/markermouse): twips per screen pixel in whole numbers, and
  // the point where a drag began, in pixels from the marker's corner.
  std::int16_t TwipsX = 0;
  std::int16_t TwipsY = 0;
  std::int16_t DragOffX = 0;
  std::int16_t DragOffY = 0;
  // For "Swap Territories" (commands/swapareas): the marked Areas that it found, from element 1.
  Table<std::int16_t> MarkedAreas;
  // For the armies (selection/inspector): the text of Armypc before the present key.
  std::string ArmypcLast;
  // For the message bar (shell/backdrop): whether it reports that a picture cannot be read or
  // named.
  bool PictureFaultShown = false;
  // For the colour panel (canvas/colourpanel): the colour composed by the bars, and the lock that
  // stops them while the panel moves them.
  forms::Color SliderColour = 0;
  std::int16_t SliderLock = 0;
  static constexpr std::int16_t LockOn = 1;
  static constexpr std::int16_t LockOff = 0;
  // For the keys (editor/formkeys): the control that had the focus before F6 moved it to the map;
  // null for none.
  forms::Control* FocusBeforeMap = nullptr;
  // For the file dialog (shell/filenames).
  forms::CommonDialog CommonDialog1;

  // The controls. Their captions and accessible names are in the control table, form1controls.cpp.

  // Above the picture
  forms::TextBox Text1{"Text1"};
  forms::TextBox EditText{"EditText"};
  forms::TextBox Symb{"Symb"};
  forms::TextBox Armypc{"Armypc"};
  forms::Label Helpbar{"Helpbar"};
  forms::Label Message{"Message"};

  // The map
  forms::PictureBox Picture1{"Picture1"};
  forms::ControlArray<forms::Label> ArmyAt{"ArmyAt"};
  forms::ControlArray<forms::Label> Continent{"Continent"};

  // "Colours" and "RGB"
  forms::Frame Frame3D1{"Frame3D1"};
  forms::ControlArray<forms::CommandButton> PlColor{"PlColor"};
  forms::Frame RGBFrame{"RGBFrame"};
  forms::ControlArray<forms::VScrollBar> ColBar{"ColBar"};

  // "Size", and the words over other controls
  forms::Frame Frame1{"Frame1"};
  forms::ControlArray<forms::Label> Countx{"Countx"};
  forms::ControlArray<forms::Label> Label1{"Label1"};

  // Commands
  forms::CommandButton LoadMap{"LoadMap"};
  forms::CommandButton LoadMpa{"LoadMpa"};
  forms::CommandButton SaveCFG{"SaveCFG"};
  forms::CommandButton Cvalid{"Cvalid"};
  forms::CommandButton RefMap{"RefMap"};
  forms::CommandButton AddTer{"AddTer"};
  forms::CommandButton AddCont{"AddCont"};
  forms::CommandButton MakeNeibor{"MakeNeibor"};
  forms::CommandButton SetCont{"SetCont"};
  forms::CommandButton SwapTer{"SwapTer"};
  forms::CommandButton ClearLink{"ClearLink"};
  forms::CommandButton DelControl{"DelControl"};
  forms::CommandButton DelAll{"DelAll"};
  forms::CommandButton TMHelp{"TMHelp"};
  forms::CommandButton DBPush1{"DBPush1"};
  forms::CommandButton Quit{"Quit"};
};

}  // namespace terramark
