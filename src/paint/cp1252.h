// Text on its way between the 8-bit text of the editor, code page 1252, and the Unicode of what is
// shown and of the names of files.
#pragma once

#include <QString>
#include <string>

namespace terramark::paint {

// Byte by byte as document/codepage.h tells.
QString FromCp1252(const std::string& text);
std::string ToCp1252(const QString& text);

/// The text with letters and their marks composed where they can be; linear in its length.
QString ComposedForm(const QString& text);

/// The text as the system writes the names of files; what the code page lacks is lost either way.
std::string InSystemEncoding(const std::string& text);
std::string FromSystemEncoding(const std::string& name);

/// Whether the text comes back from 8-bit text as it went in.
bool FitsCp1252(const QString& text);

}  // namespace terramark::paint
