// Files by the names that the user and the layouts give: asking for one, and whether it is there.
#pragma once

#include <cstdint>
#include <string>

namespace terramark {

struct Form1;

/// Which files the dialog shows.
inline constexpr char LayoutFiles[] = "*.tml";
inline constexpr char PictureFiles[] = "*.wmf;*.bmp";

/// Asks for a file; CommonDialog1.Purpose says what for. filt is one of the patterns above. s gets
/// the name as the dialog gave it, or the empty text when the user cancelled, which a name like
/// filt counts as. It may show "?" for what 8-bit text lacks; CommonDialog1 then says so, and Host
/// knows the file by it all the same.
void SelectAFile(Form1& form, const std::string& filt, std::string& s);

/// 1 when the path names a regular file that can be opened for reading, else 0.
std::int16_t FileExists(Form1& form, const std::string& path);

}  // namespace terramark
