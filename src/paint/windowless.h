// Qt for a program that draws and letters pictures and has no window.
#pragma once

#include <memory>

class QGuiApplication;

namespace terramark::paint {

/// One in a program, before the first text is measured or drawn. Asks for no display, takes no
/// notice of the desktop's theme and makes no folders; to that end it changes the environment of
/// the process, and what Qt has to say is dropped from then on.
class Windowless {
 public:
  Windowless();
  Windowless(const Windowless&) = delete;
  Windowless& operator=(const Windowless&) = delete;
  ~Windowless();

 private:
  std::unique_ptr<QGuiApplication> application_;
};

}  // namespace terramark::paint
