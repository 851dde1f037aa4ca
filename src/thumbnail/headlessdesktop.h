// A desktop without a user, for a form that is filled and drawn and has no events. A message box
// ends the program.
#pragma once

#include <string>

#include "document/maplayout.h"
#include "forms/desktop.h"

namespace terramark::thumbnail {

class HeadlessDesktop : public forms::Desktop {
 public:
  forms::Answer MsgBox(const std::string& text, forms::Buttons buttons,
                       const std::string& title) override;
  void ShowOpen(forms::CommonDialog& /*dialog*/) override {}
  void ShowModal(forms::Form& /*form*/) override {}
  void ShowHelp(std::int32_t /*topic*/) override {}

  // Nothing that is shown depends on these.
  forms::DateTime Now() override { return {}; }
  float Timer() override { return 0; }
  void Randomize(float /*seed*/) override {}
  float Rnd() override { return 0; }

  float TwipsPerPixelX() override { return UsualTwips; }
  float TwipsPerPixelY() override { return UsualTwips; }
  forms::TextExtent MeasureText(const std::string& text) override;

  forms::LoadedPicture LoadPicture(const std::string& path, int width, int height) override;
  std::string NativePath(const std::string& path) override;
  void EnterFolderOf(const std::string& path) override;

  [[noreturn]] void End(int status) override;
};

}  // namespace terramark::thumbnail
