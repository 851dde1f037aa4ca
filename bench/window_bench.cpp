// What the editor's window costs: from the program's start to the first frame, beside windows that
// have next to nothing in them, and from a press on the backdrop to the end of the repaint.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QThread>
#include <QWindow>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "largemap.h"
#include "processes.h"
#include "samples.h"
#include "window/appstyle.h"
#include "window/displayfault.h"
#include "window/keyrepeats.h"
#include "window/mainwindow.h"

namespace terramark {
namespace {

constexpr int StartRounds = 41;
constexpr int PressRounds = 25;

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

int StartEditor(int argc, char** argv) {
  window::BeginDisplayConnection();
  FirstFrame application(argc, argv);
  window::EndDisplayConnection();
  window::InstallStyle(application);
  Editor editor;
  const window::KeyRepeats repeats;
  window::MainWindow window(editor.Form);
  editor.Desktop.SetDialogParent(&window);
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

void PressAndRepaint(Form1& form, QWidget& window) {
  Picture1_MouseUp(form, {0, forms::LeftButton, 0, 5, 5});
  Repaint(window);
}

void TimePresses(ShownEditor& editor) {
  const LargeBitmap bitmap;
  const std::filesystem::path file = bitmap.Path.toStdString();
  MakeMap(editor.Form, bitmap.Path);
  Samples same;
  Samples touched;
  const auto press = [&] { PressAndRepaint(editor.Form, editor.Window); };
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
  window::InstallStyle(application);
  ShownEditor editor;
  TimePresses(editor);
  CompareStarts(editor.Window.size());
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
