// Asking for a file's name, what such a name means, and whether a file exists.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace terramark {

struct Form1;

/// Which files the dialog shows.
inline constexpr char LayoutFiles[] = "*.tml";
inline constexpr char PictureFiles[] = "*.wmf;*.bmp";

/// Asks for a file; CommonDialog1.Purpose says for what. `filt` is one of the patterns above. `s`
/// receives the name from the dialog, or the empty text when the user cancelled; a name that equals
/// `filt` counts as a cancel. The name may contain "?" for characters that 8-bit text lacks.
/// CommonDialog1 then says so, and Host still finds the file.
void SelectAFile(Form1& form, const std::string& filt, std::string& s);

/// The file that a name in 8-bit text means, from the dialog or from a layout.
std::filesystem::path FilePath(Form1& form, const std::string& name);

/// How many characters of a name are its folder, with the separator at their end; 0 without one.
std::size_t FolderLength(std::string_view name);

/// 1 when the path names a regular file that can be opened for reading, else 0.
std::int16_t FileExists(Form1& form, const std::string& path);

}  // namespace terramark
