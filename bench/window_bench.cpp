// What the editor's window costs: from the program's start to the first frame, beside windows that
// have next to nothing in them, and from a press on the backdrop to the end of the repaint.
#include <sys/resource.h>

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QThread>
#include <QWindow>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "editor/backdroppress.h"
#include "editor/handlers.h"
#include "processes.h"
#include "samples.h"
#include "shell/backdrop.h"
#include "shell/form1.h"
#include "shell/startup.h"
#include "window/displayfault.h"
#include "window/keyrepeats.h"
#include "window/look.h"
#include "window/mainwindow.h"
#include "window/qtdesktop.h"

namespace terramark {
namespace {

constexpr int StartRounds = 41;
constexpr int PressRounds = 25;

double CpuSeconds() {
  rusage used{};
  getrusage(RUSAGE_SELF, &used);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  return seconds(used.ru_utime) + seconds(used.ru_stime);
}

/// Ends the process once its first frame is on the screen, and prints what it took until then.
class FirstFrame : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override {
    painted_ = painted_ || event->type() == QEvent::Paint;
    const bool done = QApplication::notify(receiver, event);
    // The widgets are painted within an event of the window that shows them.
    if (painted_ && receiver->isWindowType()) {
      std::printf("%f %f\n", CpuSeconds(), StatusKilobytes("VmHWM"));
      std::fflush(nullptr);
      std::_Exit(0);
    }
    return done;
  }

 private:
  bool painted_ = false;
};

struct Editor {
  Editor() {
    JoinHandlers(Form);
    Form_Load(Form);
  }

  window::QtDesktop Desktop;
  Form1 Form{Desktop};
};

int StartEditor(int argc, char** argv) {
  window::BeginJoiningDisplay();
  FirstFrame application(argc, argv);
  window::EndJoiningDisplay();
  window::SetUpLook(application);
  Editor editor;
  const window::KeyRepeats repeats;
  window::MainWindow window(editor.Form);
  editor.Desktop.StandOver(&window);
  window.show();
  return FirstFrame::exec();
}

int StartPlain(int argc, char** argv, bool withText) {
  const FirstFrame application(argc, argv);
  QMainWindow window;
  QLabel label("Terramark");
  if (withText) window.setCentralWidget(&label);
  window.resize(std::atoi(argv[2]), std::atoi(argv[3]));
  window.show();
  return FirstFrame::exec();
}

void CompareStarts(QSize size) {
  const QStringList sides{QString::number(size.width()), QString::number(size.height())};
  struct Kind {
    const char* Name;
    Samples Cpu = {};
    Samples Memory = {};
  };
  std::array<Kind, 3> kinds{{{"empty"}, {"label"}, {"editor"}}};
  for (int i = 0; i < StartRounds; ++i) {
    for (Kind& kind : kinds) {
      const std::vector<double> used = RunAnew(QStringList{kind.Name} + sides);
      kind.Cpu.Add(used.at(0));
      kind.Memory.Add(used.at(1));
    }
  }
  const auto& [empty, label, editor] = kinds;
  const auto print = [&](const char* what, Samples Kind::*of, double unit, const char* name) {
    const double base = (empty.*of).Median();
    std::printf("%-40s empty window %.1f %s   one with a text %.2f   editor %.2f\n", what,
                base * unit, name, (label.*of).Median() / base, (editor.*of).Median() / base);
  };
  print("start to the first frame, CPU", &Kind::Cpu, 1000, "ms");
  print("start to the first frame, peak memory", &Kind::Memory, 1.0 / 1024, "MB");
}

/// 96 Areas on a large picture.
void MakeMap(Form1& form, const QString& picture) {
  form.PictureFile = picture.toStdString();
  if (!ShowPicture(form, form.PictureFile)) qFatal("cannot show %s", qPrintable(picture));
  for (int i = 0; i < 96; ++i) {
    const auto x = static_cast<float>(10 + 44 * (i % 12));
    const auto y = static_cast<float>(40 + 33 * (i / 12));
    Picture1_MouseUp(form, {0, forms::LeftButton, forms::CtrlKey, x, y});
  }
  if (form.AreaCount != 96) qFatal("the Areas are not there");
}

/// A press, and the repaint that it asks for, without the platform's wait for the next frame.
void PressAndRepaint(Form1& form, QWidget& window) {
  Picture1_MouseUp(form, {0, forms::LeftButton, 0, 5, 5});
  QCoreApplication::processEvents();
  QEvent update(QEvent::UpdateRequest);
  QCoreApplication::sendEvent(&window, &update);
}

void TimePresses(Editor& editor, QWidget& window) {
  const LargeBitmap bitmap;
  const std::filesystem::path file = bitmap.Path.toStdString();
  MakeMap(editor.Form, bitmap.Path);
  Samples same;
  Samples touched;
  const auto press = [&] { PressAndRepaint(editor.Form, window); };
  for (int i = 0; i < PressRounds; ++i) {
    std::filesystem::last_write_time(file, std::filesystem::file_time_type::clock::now());
    // A file is taken for unchanged only when it has been at rest.
    QThread::msleep(50);
    touched.Take(press);
    same.Take(press);
  }
  std::printf("%-40s %.2f ms   with the file touched %.1f ms\n",
              "press on the backdrop, 4096 x 4096", 1000 * same.Median(), 1000 * touched.Median());
}

void Compare(int argc, char** argv) {
  QApplication application(argc, argv);
  window::SetUpLook(application);
  Editor editor;
  window::MainWindow window(editor.Form);
  window.show();
  while (!window.windowHandle()->isExposed()) QCoreApplication::processEvents();
  TimePresses(editor, window);
  CompareStarts(window.size());
}

}  // namespace
}  // namespace terramark

int main(int argc, char** argv) {
  const std::string kind = argc == 4 ? argv[1] : "";
  if (kind == "editor") return terramark::StartEditor(argc, argv);
  if (!kind.empty()) return terramark::StartPlain(argc, argv, kind == "label");
  terramark::Compare(argc, argv);
  return 0;
}
