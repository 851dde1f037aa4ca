// The card symbols: their codes in the document, their letters in the box and in a layout, and
// their words in the status line.
#pragma once

#include <string>
#include <string_view>

namespace terramark {

struct CardSymbol {
  char Code;
  char Letter;
  const char* Word;
};

/// The symbol whose code is the first character of an AreaSymbol. Null for an empty AreaSymbol, and
/// for the code "9", which has no letter and no word.
const CardSymbol* SymbolOfCode(std::string_view areaSymbol);

/// The symbol of a letter, upper case only, or null.
const CardSymbol* SymbolOfLetter(char letter);

/// The letter of an AreaSymbol as text; empty where it has none.
std::string CardSymbolLetter(std::string_view areaSymbol);

}  // namespace terramark
