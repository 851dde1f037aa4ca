#include "shell/randomcard.h"

#include <algorithm>
#include <cmath>

#include "shell/form1.h"

namespace terramark {

char RandomCardSymbol(Form1& form) {
  form.Host.Randomize(form.Host.Timer());
  // A number from 1 to 4, rounded to the even one in a tie. 4 counts as 3, hence the unequal odds.
  const long drawn = std::lrint(form.Host.Rnd() * 3.0F + 1.0F);
  return static_cast<char>('0' + std::min(drawn, 3L));
}

}  // namespace terramark
