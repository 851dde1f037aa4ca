// The classic encoding of the symbol font: Greek letters, signs, arrows and pieces of brackets.
#pragma once

namespace terramark::metafile {

/// The letter of a byte of that encoding; U+FFFD where it has none.
char16_t DecodeSymbol(unsigned char byte);

/// The letter that reads the same, or nearly so, and that more fonts have; 0 without one.
char16_t PlainerLetter(char16_t symbol);

}  // namespace terramark::metafile
