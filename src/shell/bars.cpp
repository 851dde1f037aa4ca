#include "shell/bars.h"

#include "document/numbers.h"
#include "shell/colours.h"
#include "shell/form1.h"

namespace terramark {

namespace {

void UpdateCount(forms::Label& label, std::int16_t count) {
  if (ReadNumber(label.Caption.Get()) != count) label.Caption = NumberText(count);
}

}  // namespace

void ShowMessage(Form1& form, const std::string& text, forms::Color colour) {
  form.Message.BackColor = colour;
  form.Message.ForeColor = ClrBlack;
  form.Message.Alert = colour == ClrRed;
  if (form.Message.Alert) form.Message.ForeColor = ClrWhite;
  form.Message.Caption = text;
  form.PictureFaultShown = false;
  // A repeated message changes no property, but must be announced again.
  form.Message.Refresh();
}

void ShowHelpbar(Form1& form, const std::string& text) {
  // Called on every move of the mouse; assigning the same text notifies nobody.
  form.Helpbar.Caption = text;
}

void UpdateCounts(Form1& form) {
  UpdateAreaCount(form);
  UpdateRegionCount(form);
}

void UpdateAreaCount(Form1& form) {
  UpdateCount(form.Countx(0), form.AreaCount);
}

void UpdateRegionCount(Form1& form) {
  UpdateCount(form.Countx(1), form.RegionCount);
}

void ShowHelpTopic(Form1& form, std::int16_t topic) {
  form.Host.ShowHelp(topic);
}

}  // namespace terramark
