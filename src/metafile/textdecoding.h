// From the bytes of a text record to Unicode, by the character set of the font.
#pragma once

#include <QByteArrayView>
#include <QString>

#include "metafile/graphicsobjects.h"

namespace terramark::metafile {

/// How many bytes the first letter of `text`, which is not empty, takes: 1 or 2.
int FirstLetterBytes(QByteArrayView text, const Font& font);

/// What the one or two bytes of a letter stand for. U+FFFD for one that the set does not have; a
/// set that is not known, and a code page that the system does not have, are read as Western. A
/// font's own sign is PrivateUseStart and its byte.
QString DecodeLetter(QByteArrayView letter, const Font& font);

}  // namespace terramark::metafile
