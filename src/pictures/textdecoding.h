// From the bytes of a text record to Unicode, by the character set of the font.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <vector>

#include "pictures/graphicsobjects.h"

namespace terramark::pictures {

/// One letter and how many of the record's bytes it takes.
struct Letter {
  QString Text;
  int Bytes = 1;
};

/// Whether the font holds signs in place of letters, like the symbol font.
bool HoldsSigns(const Font& font);

/// The letters of `bytes` in their order, their Bytes adding up to all of them. Those that the set
/// does not have come out as U+FFFD; a set that is not known, and a code page that the system does
/// not have, are read as Western.
std::vector<Letter> DecodeText(QByteArrayView bytes, const Font& font);

}  // namespace terramark::pictures
