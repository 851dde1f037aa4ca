// Converts the bytes of a text record to Unicode, by the character set of the font.
#pragma once

#include <QByteArrayView>
#include <QString>

#include "metafile/graphicsobjects.h"

namespace terramark::metafile {

/// The length in bytes of the first letter of `text`, which is not empty: 1 or 2.
int FirstLetterBytes(QByteArrayView text, const Font& font);

/// The character of the one or two bytes of a letter. U+FFFD for one that the set does not have. An
/// unknown set, and a code page that the system does not have, are read as Western. A font's own
/// symbol is PrivateUseStart plus its byte.
QString DecodeLetter(QByteArrayView letter, const Font& font);

}  // namespace terramark::metafile
