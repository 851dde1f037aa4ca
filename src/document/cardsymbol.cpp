#include "document/cardsymbol.h"

#include <algorithm>
#include <iterator>

namespace terramark {

namespace {

constexpr CardSymbol CardSymbols[] = {
    // code letter word
    {'1', 'G', "GUN"},
    {'2', 'H', "HORSE"},
    {'3', 'S', "SOLDIER"},
};

template <typename Key>
const CardSymbol* FindSymbol(Key CardSymbol::*key, Key wanted) {
  const auto* found = std::ranges::find(CardSymbols, wanted, key);
  return found == std::end(CardSymbols) ? nullptr : found;
}

}  // namespace

const CardSymbol* SymbolOfCode(std::string_view areaSymbol) {
  return areaSymbol.empty() ? nullptr : FindSymbol(&CardSymbol::Code, areaSymbol[0]);
}

const CardSymbol* SymbolOfLetter(char letter) {
  return FindSymbol(&CardSymbol::Letter, letter);
}

std::string CardSymbolLetter(std::string_view areaSymbol) {
  const CardSymbol* symbol = SymbolOfCode(areaSymbol);
  return symbol == nullptr ? std::string() : std::string(1, symbol->Letter);
}

}  // namespace terramark
