// The world outside the editor, on Qt.
#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <memory>
#include <random>
#include <string>

#include "forms/desktop.h"
#include "pictures/lastpicture.h"

namespace terramark::window {

class QtDesktop : public forms::Desktop {
 public:
  /// The window over which boxes and dialogs open; none until it is set.
  void SetDialogParent(QWidget* window) { window_ = window; }

  forms::Answer MsgBox(const std::string& text, forms::Buttons buttons,
                       const std::string& title) override;
  void ShowOpen(forms::CommonDialog& dialog) override;
  void ShowModal(forms::Form& form) override;
  void ShowHelp(std::int32_t topic) override;

  forms::DateTime Now() override;
  float Timer() override;
  void Randomize(float seed) override;
  float Rnd() override;

  float TwipsPerPixelX() override;
  float TwipsPerPixelY() override;
  forms::TextExtent MeasureText(const std::string& text) override;

  forms::LoadedPicture LoadPicture(const std::string& path, int width, int height) override;
  std::string NativePath(const std::string& path) override;
  void EnterFolderOf(const std::string& path) override;

  [[noreturn]] void End(int status) override;

 private:
  QPointer<QWidget> window_;
  /// The help viewer; null until the first request.
  std::unique_ptr<QWidget> help_;
  /// The file chosen last in the file dialog; empty before the first.
  QString chosen_;
  pictures::LastPicture picture_;
  std::mt19937 random_;
};

}  // namespace terramark::window
