// Text on its way between the 8-bit text of the editor, code page 1252, and the Unicode of what is
// shown and of the names of files.
#pragma once

#include <QString>
#include <string>

namespace terramark::pictures {

/// Every byte gives one character; the five bytes that the code page does not assign give the
/// control characters of the same number.
QString FromCp1252(const std::string& text);

/// A character that the code page lacks becomes one "?".
std::string ToCp1252(const QString& text);

/// The text with letters and their marks composed where they can be; linear in its length.
QString ComposedForm(const QString& text);

/// The text as the system writes the names of files; what the code page lacks is lost either way.
std::string InSystemEncoding(const std::string& text);
std::string FromSystemEncoding(const std::string& name);

/// Whether the text comes back from 8-bit text as it went in.
bool FitsCp1252(const QString& text);

}  // namespace terramark::pictures
