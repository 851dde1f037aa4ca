// The editor's interface to the world outside, except for the bytes of its files: boxes, file
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

/// The purpose of the file dialog, which shows in its title and on its button, "Open" or "Save".
struct FilePurpose {
  std::string Title;
  bool Saves = false;
};

/// The properties of the file dialog. Filter is a pattern list such as "*.wmf;*.bmp". FileName is
/// passed in and out, and is unchanged when the user cancels. FileTitle is FileName without its
/// folder. Each of both fits when a Map Layout can hold it: it has no line end and no character
/// that the 8-bit text lacks. Such a character is replaced by "?".
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

  /// Shows a modal box. When it is closed without a button the answer is No, or Ok where that is
  /// the only button.
  virtual Answer MsgBox(const std::string& text, Buttons buttons, const std::string& title) = 0;
  /// Shows the file dialog. For both purposes it accepts a file that exists and, unless the
  /// desktop's own dialog insists on one for opening, a name without a file. It asks no questions
  /// about either.
  virtual void ShowOpen(CommonDialog& dialog) = 0;
  /// Shows a form and returns when it has been unloaded.
  virtual void ShowModal(Form& form) = 0;
  /// Opens the help viewer on a topic. It reports nothing, not even a failure.
  virtual void ShowHelp(std::int32_t topic) = 0;

  /// Local time.
  virtual DateTime Now() = 0;
  /// Seconds since the local midnight, 0 to 86400, as exact as a float.
  virtual float Timer() = 0;
  /// Restarts the random numbers. Any number is a seed. Equal seeds give equal numbers, as do runs
  /// that set no seed.
  virtual void Randomize(float seed) = 0;
  /// The next random number: 0 <= r < 1, in steps of 2^-24.
  virtual float Rnd() = 0;

  /// The twips of a pixel of the screen, across and down, above 0: 15 at 96 dots per inch.
  virtual float TwipsPerPixelX() = 0;
  virtual float TwipsPerPixelY() = 0;
  /// The size of a text as one line, as far as a caption shows it. The empty text has a height too.
  virtual TextExtent MeasureText(const std::string& text) = 0;

  /// Reads a bitmap in its own size, or a metafile drawn into width x height pixels. The empty path
  /// gives the empty picture. A fault when the file is missing or cannot be decoded. Throws
  /// std::bad_alloc when memory runs out.
  virtual LoadedPicture LoadPicture(const std::string& path, int width, int height) = 0;
  /// The name for the file system, in UTF-8, of a path in 8-bit text. The FileName that the dialog
  /// returned last means the file that was chosen there, whatever characters are "?" in it.
  virtual std::string NativePath(const std::string& path) = 0;
  /// Makes the folder of a file the current one, where relative paths begin. A path without a
  /// folder changes nothing, nor does a folder that cannot be entered.
  virtual void EnterFolderOf(const std::string& path) = 0;

  /// Ends the process at once; nothing of the calling handler runs after it.
  [[noreturn]] virtual void End(int status) = 0;
};

}  // namespace terramark::forms
