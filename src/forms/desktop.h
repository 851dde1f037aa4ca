// The one interface of the editor to the world outside, but for the bytes of its files: boxes, file
// dialog, help, clock, random numbers, screen, picture loading, ending. The window implements it;
// tests script it.
#pragma once

#include <cstdint>
#include <string>

#include "forms/raster.h"

namespace terramark::forms {

class Form;

enum class Buttons { Ok, YesNo };
enum class Answer { Ok, Yes, No };

/// Size of a text in pixels, in the labels' font.
struct TextExtent {
  int Width = 0;
  int Height = 0;
};

struct DateTime {
  int Year = 0;
  int Month = 0;  // 1 to 12
  int Day = 0;    // 1 to 31
  int Hour = 0;   // 0 to 23
  int Minute = 0;
  int Second = 0;
};

/// What a file is asked for, as the dialog tells the user: in its title, and by its button, "Open"
/// or "Save".
struct FilePurpose {
  std::string Title;
  bool Saves = false;
};

/// The file dialog's properties: Filter is a pattern list such as "*.wmf;*.bmp"; FileName goes in
/// and comes out, unchanged when the user cancels. FileTitle comes out as FileName without its
/// folder. Either fits when a Map Layout can hold it: it has no line end and no character that the
/// 8-bit text lacks. "?" stands in the place of such a character.
struct CommonDialog {
  std::string Filter;
  std::string FileName;
  std::string FileTitle;
  bool FileNameFits = true;
  bool FileTitleFits = true;
  FilePurpose Purpose{};
};

class Desktop {
 public:
  virtual ~Desktop() = default;

  /// Shows a modal box. Closing it by other means than a button answers No, or Ok where that is the
  /// only button.
  virtual Answer MsgBox(const std::string& text, Buttons buttons, const std::string& title) = 0;
  /// Shows the file dialog. For either purpose it takes a file that exists and, where the desktop's
  /// own dialog does not insist on one for opening, a name that does not; it asks nothing about
  /// either.
  virtual void ShowOpen(CommonDialog& dialog) = 0;
  /// Shows a form and returns when it has been unloaded.
  virtual void ShowModal(Form& form) = 0;
  /// Opens the help viewer on a topic. Nothing comes back, not even a failure.
  virtual void ShowHelp(std::int32_t topic) = 0;

  /// Local time.
  virtual DateTime Now() = 0;
  /// Seconds since the local midnight, 0 to 86400, with what part of one a float still holds.
  virtual float Timer() = 0;
  /// Begins the random numbers anew. Any number is a seed; equal seeds give equal draws, and so
  /// does each run that gives none.
  virtual void Randomize(float seed) = 0;
  /// The next random number: 0 <= r < 1, in steps of 2^-24.
  virtual float Rnd() = 0;

  /// Twips that a pixel of the screen measures across and down, above 0: 15 at 96 dots an inch.
  virtual float TwipsPerPixelX() = 0;
  virtual float TwipsPerPixelY() = 0;
  /// The size of a text as one line, as far as a caption shows it. The empty text has a height too.
  virtual TextExtent MeasureText(const std::string& text) = 0;

  /// Reads a bitmap at its own size, or a metafile drawn into width x height pixels. The empty path
  /// gives the empty picture; a fault when the file is missing or cannot be decoded.
  /// Throws std::bad_alloc when the memory does not reach.
  virtual LoadedPicture LoadPicture(const std::string& path, int width, int height) = 0;
  /// The file system's name, in its own bytes, of a path held in 8-bit text. The FileName that the
  /// dialog gave last stands for the file chosen there, whatever characters "?" hides.
  virtual std::string NativePath(const std::string& path) = 0;
  /// Makes the folder of a file the current one, where relative paths begin. A path without a
  /// folder changes nothing, and neither does a folder that cannot be entered.
  virtual void EnterFolderOf(const std::string& path) = 0;

  /// Ends the process at once; nothing of the calling handler runs after it.
  [[noreturn]] virtual void End(int status) = 0;
};

}  // namespace terramark::forms
