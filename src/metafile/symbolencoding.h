// The classic encoding of the symbol font: Greek letters, signs, arrows and pieces of brackets.
#pragma once

namespace terramark::metafile {

/// The character of a byte in that encoding; U+FFFD where it has none.
char16_t DecodeSymbol(unsigned char byte);

/// A character that looks the same, or nearly so, and that more fonts have; 0 where there is none.
char16_t PlainerLetter(char16_t symbol);

}  // namespace terramark::metafile
