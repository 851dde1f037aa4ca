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

  // What is current, 0 for none. A number may outlive its marker: look with Find before use.
  std::int16_t CurArea = 0;
  std::int16_t CurRegion = 0;
  // Running count of marks; raised and lowered by gestures, not derived from the markers.
  std::int16_t MarkCount = 0;
  // Path of the layout last opened or saved.
  std::string LayoutFile;

  // Of the mouse on the markers (canvas/markermouse): twips per screen pixel in whole numbers, and
  // where a drag took hold, in pixels from the marker's corner.
  std::int16_t TwipsX = 0;
  std::int16_t TwipsY = 0;
  std::int16_t DragOffX = 0;
  std::int16_t DragOffY = 0;
  // Of "Swap Territories" (commands/swapareas): the marked Areas it found, from element 1 on.
  Table<std::int16_t> MarkedAreas;
  // Of the armies (selection/inspector): the text of Armypc before the key now being pressed.
  std::string ArmypcLast;
  // Of the colour panel (canvas/colourpanel): the colour composed on the bars, and what holds them
  // still while the panel moves them.
  forms::Color SliderColour = 0;
  std::int16_t SliderLock = 0;
  static constexpr std::int16_t LockOn = 1;
  static constexpr std::int16_t LockOff = 0;
  // Of the keys (editor/formkeys): what had the keyboard before F6 gave it to the map; null for
  // none.
  forms::Control* FocusBeforeMap = nullptr;
  // Of the file dialog (shell/filenames).
  forms::CommonDialog CommonDialog1;

  // Behind each control its caption, or the word that a user knows it by.

  // Above the picture
  forms::TextBox Text1{"Text1"};        // the header line of the layout
  forms::TextBox EditText{"EditText"};  // the name of the Area or Region
  forms::TextBox Symb{"Symb"};          // the card symbol of the Area
  forms::TextBox Armypc{"Armypc"};      // the armies of the Region
  forms::Label Helpbar{"Helpbar"};      // what is under the pointer
  forms::Label Message{"Message"};      // what a command says

  // The map
  forms::PictureBox Picture1{"Picture1"};                    // the picture
  forms::ControlArray<forms::Label> ArmyAt{"ArmyAt"};        // the Areas' markers
  forms::ControlArray<forms::Label> Continent{"Continent"};  // the Regions' markers

  // "Colours" and "RGB"
  forms::Frame Frame3D1{"Frame3D1"};                             // "Colours"
  forms::ControlArray<forms::CommandButton> PlColor{"PlColor"};  // "Player1" to "Continent"
  forms::Frame RGBFrame{"RGBFrame"};                             // "RGB"
  forms::ControlArray<forms::VScrollBar> ColBar{"ColBar"};       // red, green, blue

  // "Size", and the words over other controls
  forms::Frame Frame1{"Frame1"};                       // "Size"
  forms::ControlArray<forms::Label> Countx{"Countx"};  // the numbers of Areas and of Regions
  forms::ControlArray<forms::Label> Label1{
      "Label1"};  // "Areas", "Regions", "Map Layout", "Picture"

  // Commands
  forms::CommandButton LoadMap{"LoadMap"};        // "Load A .WMF Picture"; then the picture's name
  forms::CommandButton LoadMpa{"LoadMpa"};        // "Load a Map Layout"; then the layout's name
  forms::CommandButton SaveCFG{"SaveCFG"};        // "Save a Map Layout"
  forms::CommandButton Cvalid{"Cvalid"};          // "Validate Map"
  forms::CommandButton RefMap{"RefMap"};          // "Refresh map"
  forms::CommandButton AddTer{"AddTer"};          // "Add Area"
  forms::CommandButton AddCont{"AddCont"};        // "Add Region"
  forms::CommandButton MakeNeibor{"MakeNeibor"};  // "Set Neighbours"
  forms::CommandButton SetCont{"SetCont"};        // "Set Region"
  forms::CommandButton SwapTer{"SwapTer"};        // "Swap Territories"
  forms::CommandButton ClearLink{"ClearLink"};    // "Clear all Links"
  forms::CommandButton DelControl{"DelControl"};  // "Delete"
  forms::CommandButton DelAll{"DelAll"};          // "Clear whole Map"
  forms::CommandButton TMHelp{"TMHelp"};          // "Help"
  forms::CommandButton DBPush1{"DBPush1"};        // "About"
  forms::CommandButton Quit{"Quit"};              // "Exit"
};

}  // namespace terramark
