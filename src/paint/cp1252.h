// Converts between the editor's 8-bit text, code page 1252, and Unicode.
#pragma once

#include <QString>
#include <string>

namespace terramark::paint {

// Byte by byte, by the table in document/codepage.h. A character that the code page lacks becomes
// "?".
QString FromCp1252(const std::string& text);
std::string ToCp1252(const QString& text);

/// The text with letters and marks composed where possible, in linear time.
QString ComposedForm(const QString& text);

/// Whether the text is the same after a conversion to 8-bit text and back.
bool FitsCp1252(const QString& text);

}  // namespace terramark::paint
