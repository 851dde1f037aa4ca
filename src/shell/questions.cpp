#include "shell/questions.h"

#include "shell/form1.h"

namespace terramark {

bool Confirm(Form1& form, const std::string& question) {
  return form.Host.MsgBox(question, forms::Buttons::YesNo, "Terramark") == forms::Answer::Yes;
}

}  // namespace terramark
