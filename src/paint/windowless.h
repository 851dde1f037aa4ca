// Qt for a program that draws pictures and text and has no window.
#pragma once

#include <memory>

class QGuiApplication;

namespace terramark::paint {

/// One per program, before the first text is measured or drawn. It connects to no display, ignores
/// the desktop's theme and creates no folders. For this it changes the environment of the process;
/// Qt's messages are dropped from then on.
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
