#include "canvas/readmapfile.h"

#include "canvas/showlayout.h"
#include "layoutfile/layoutreader.h"
#include "shell/bars.h"
#include "shell/colourtarget.h"
#include "shell/filenames.h"
#include "shell/form1.h"

namespace terramark {

namespace {

constexpr char BoxTitle[] = "TMRK 1.1";
constexpr int ExitFailed = 1;

/// False when the file has a fault; a missing picture is none. Shows what has been read step by
/// step.
bool ReadAndShow(Form1& form, LayoutReader& file) {
  const LayoutResult head = file.ReadHead();
  ShowHead(form, file.Layout());
  if (!head) return false;
  if (FileExists(form, form.PictureFile) == 0) {
    form.Host.MsgBox("MAP File " + form.PictureFile + " not found", forms::Buttons::Ok, BoxTitle);
    return true;
  }
  form.LoadMap.Caption = form.PictureFile;
  const LayoutResult colours = file.ReadPlayerColours();
  form.PlayerRGB = file.Layout().PlayerRGB;
  if (!colours) return false;
  ShowPlayerColours(form);
  const LayoutResult map = file.ReadMap();
  PlaceMarkers(form, file.Layout());
  forms::Desktop& screen = form.Host;
  const LayoutResult reach = file.CheckRange(screen.TwipsPerPixelX(), screen.TwipsPerPixelY());
  if (!map || !reach || !ShowMap(form)) return false;
  UpdateCounts(form);
  return true;
}

}  // namespace

void ReadMapFile(Form1& form, std::string_view bytes) {
  LayoutReader file(bytes, form);
  if (ReadAndShow(form, file)) return;
  // The box only names the file; terramark-check reports the line and the fault.
  form.Host.MsgBox("Error reading Map Layout File " + form.LayoutFile, forms::Buttons::Ok,
                   BoxTitle);
  form.Host.End(ExitFailed);
}

}  // namespace terramark
