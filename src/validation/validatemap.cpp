#include "validation/validatemap.h"

#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "validation/rules.h"

namespace terramark {

void ValidateMap(Form1& form, std::int16_t& status, std::string& message) {
  Verdict verdict = JudgeMap(form);
  status = verdict.Status;
  message = std::move(verdict.Message);
  if (status == 0) ShowMessage(form, message, ClrGreen);
}

bool MapIsValid(Form1& form) {
  std::int16_t status = 0;
  std::string message;
  ValidateMap(form, status, message);
  if (status != 0) ShowMessage(form, message, ClrRed);
  return status == 0;
}

}  // namespace terramark
