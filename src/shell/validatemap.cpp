#include "shell/validatemap.h"

#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "validation/rules.h"

namespace terramark {

bool ValidateMap(Form1& form) {
  const Verdict verdict = CheckMap(form);
  const bool good = verdict.Status == 0;
  ShowMessage(form, verdict.Message, good ? ClrGreen : ClrRed);
  return good;
}

}  // namespace terramark
