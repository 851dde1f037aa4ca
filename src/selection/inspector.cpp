#include "selection/inspector.h"

#include "document/cardsymbol.h"
#include "document/numbers.h"
#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

namespace {

/// The code of "X", which has neither letter nor word.
constexpr char NoSymbolCode = '9';

char UpperCase(char letter) {
  return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

/// The code of an upper case letter; 0 for a letter without one.
char CodeOfLetter(char letter) {
  if (letter == 'X') return NoSymbolCode;
  const CardSymbol* symbol = SymbolOfLetter(letter);
  return symbol != nullptr ? symbol->Code : '\0';
}

}  // namespace

void EditText_Change(Form1& form) {
  const std::string& text = form.EditText.Text;
  const std::string name = text.empty() ? UnknownName : text;
  if (form.CurRegion != 0) {
    forms::Label* marker = RegionMarker(form, form.CurRegion);
    if (marker == nullptr) return;
    form.RegionName(form.CurRegion) = name;
    marker->Caption = name;
    return;
  }
  if (AreaMarker(form, form.CurArea) == nullptr) return;
  form.AreaName(form.CurArea) = name;
  ShowMessage(form,
              NumberText(form.CurArea) + ": " + form.AreaName(form.CurArea) + " (" +
                  CardSymbolLetter(form.AreaSymbol(form.CurArea)) + ") in Region " +
                  form.RegionName(form.AreaRegion(form.CurArea)),
              ClrGreen);
}

void Symb_Change(Form1& form) {
  const std::string& text = form.Symb.Text;
  if (text.empty() || AreaMarker(form, form.CurArea) == nullptr) return;
  const char letter = UpperCase(text[0]);
  const char code = text.size() == 1 ? CodeOfLetter(letter) : '\0';
  if (code == '\0') return;
  form.AreaSymbol(form.CurArea).replace(0, 1, 1, code);
  ShowMessage(form,
              "Area Card Symbol for Area " + form.AreaName(form.CurArea) + " set to " + letter,
              ClrGreen);
}

void Armypc_Change(Form1& form) {
  const double armies = ReadNumber(form.Armypc.Text.Get());
  if (armies <= 0 || armies > 99) {
    form.Armypc.Text = form.ArmypcLast;
    return;
  }
  // Without a current Region the number is written to row 0, which nothing reads.
  if (form.CurRegion != 0 && RegionMarker(form, form.CurRegion) == nullptr) return;
  form.RegionArmies(form.CurRegion) = WholeNumber(armies).value_or(0);
}

void Armypc_KeyDown(Form1& form) {
  form.ArmypcLast = form.Armypc.Text;
}

void Armypc_KeyPress(Form1& form) {
  form.ArmypcLast = form.Armypc.Text;
}

}  // namespace terramark
