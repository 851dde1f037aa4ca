// A desktop that answers from queues and records what it was asked.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "forms/desktop.h"
#include "forms/form.h"

namespace terramark {

/// Thrown where the process would end.
struct Ended : std::runtime_error {
  explicit Ended(int status)
      : std::runtime_error("ended with " + std::to_string(status)), Status(status) {}
  int Status;
};

inline forms::Picture BlankPicture(int width, int height, std::uint32_t pixel = 0xFFFFFFFF) {
  auto raster = std::make_shared<forms::Raster>();
  raster->Width = width;
  raster->Height = height;
  raster->Pixels.assign(raster->IndexOf(0, height), pixel);
  return raster;
}

/// Watches a form as long as it lives, and keeps what most tests ask of a window.
struct Watcher : forms::FormObserver {
  explicit Watcher(forms::Form& form) : form_(form) { form.Observe(this); }
  ~Watcher() { form_.Observe(nullptr); }

  int Changes = 0;
  int Added = 0;
  int Removed = 0;

  void ControlAdded(forms::Control&) override { ++Added; }
  void ControlRemoved(forms::Control&) override { ++Removed; }
  void PropertyChanged(forms::Control&, forms::PropertyId) override { ++Changes; }
  void Restacked(forms::Control&) override {}
  void FocusMoved(forms::Control&) override {}
  void Refreshed(forms::Control&) override {}
  void PointerMoved() override {}
  void Unloaded() override {}

 private:
  forms::Form& form_;
};

class ScriptedDesktop : public forms::Desktop {
 public:
  /// Next answers of Yes and No boxes; none left answers No.
  std::deque<forms::Answer> Answers;
  /// Next names chosen in the file dialog; none left cancels.
  std::deque<std::string> FileNames;
  bool FileNameFits = true;
  bool FileTitleFits = true;
  /// Next random numbers; none left gives 0.
  std::deque<float> Draws;
  std::map<std::string, forms::Picture> Pictures;
  /// Runs while a picture is read.
  std::function<void()> Loading = [] {};
  int ModalForms = 0;
  forms::DateTime Clock{1999, 3, 14, 21, 5, 7};
  float SecondsOfDay = 75907;
  float Twips = 15;

  /// Boxes as "title: text".
  std::vector<std::string> Boxes;
  std::vector<std::string> Filters;
  std::vector<int> Topics;
  std::vector<float> Seeds;
  int PictureReads = 0;
  /// Paths whose folders became the current one.
  std::vector<std::string> Entered;

  /// How often anything was asked or shown.
  std::size_t Asked() const {
    return Boxes.size() + Filters.size() + Topics.size() + static_cast<std::size_t>(ModalForms);
  }

  forms::Answer MsgBox(const std::string& text, forms::Buttons buttons,
                       const std::string& title) override {
    Boxes.push_back(title + ": " + text);
    return buttons == forms::Buttons::Ok ? forms::Answer::Ok : Next(Answers, forms::Answer::No);
  }
  void ShowOpen(forms::CommonDialog& dialog) override {
    Filters.push_back(dialog.Filter);
    dialog.FileName = Next(FileNames, dialog.FileName);
    dialog.FileTitle = dialog.FileName.substr(dialog.FileName.rfind('/') + 1);
    dialog.FileNameFits = FileNameFits;
    dialog.FileTitleFits = FileTitleFits;
  }
  void ShowModal(forms::Form&) override { ++ModalForms; }
  void ShowHelp(std::int32_t topic) override { Topics.push_back(topic); }
  forms::DateTime Now() override { return Clock; }
  float Timer() override { return SecondsOfDay; }
  void Randomize(float seed) override { Seeds.push_back(seed); }
  float Rnd() override { return Next(Draws, 0.0F); }
  float TwipsPerPixelX() override { return Twips; }
  float TwipsPerPixelY() override { return Twips; }
  /// Every character 7 wide, every text 14 high.
  forms::TextExtent MeasureText(const std::string& text) override {
    return {7 * static_cast<int>(text.size()), 14};
  }
  forms::LoadedPicture LoadPicture(const std::string& path, int, int) override {
    ++PictureReads;
    Loading();
    if (path.empty()) return std::make_shared<forms::Raster>();
    const auto found = Pictures.find(path);
    if (found == Pictures.end()) return tl::unexpected<std::string>("gone");
    return found->second;
  }
  std::string NativePath(const std::string& path) override { return path; }
  void EnterFolderOf(const std::string& path) override { Entered.push_back(path); }
  [[noreturn]] void End(int status) override { throw Ended(status); }

 private:
  template <typename T>
  static T Next(std::deque<T>& queue, T otherwise) {
    if (queue.empty()) return otherwise;
    T next = queue.front();
    queue.pop_front();
    return next;
  }
};

/// Every picture is there, and so is every file.
class StockedDesktop : public ScriptedDesktop {
 public:
  forms::LoadedPicture LoadPicture(const std::string&, int, int) override { return picture_; }
  std::string NativePath(const std::string&) override { return "/proc/self/exe"; }

 private:
  const forms::Picture picture_ = BlankPicture(4, 3);
};

}  // namespace terramark
