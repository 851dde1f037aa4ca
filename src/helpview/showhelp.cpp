#include "helpview/showhelp.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "helpview/helpwindow.h"

namespace terramark::helpview {

namespace {

/// A window to assistive tools. Qt takes it for a dialog, which would seem a part of the editor's
/// window.
class WindowAccessible final : public QAccessibleWidget {
 public:
  explicit WindowAccessible(HelpWindow& window) : QAccessibleWidget(&window, QAccessible::Window) {}
};

QAccessibleInterface* MakeAccessible(const QString& /*className*/, QObject* object) {
  auto* const window = dynamic_cast<HelpWindow*>(object);
  if (window == nullptr) return nullptr;
  return std::make_unique<WindowAccessible>(*window).release();
}

}  // namespace

void ShowHelp(std::unique_ptr<QWidget>& viewer, std::int32_t topic, const QWidget* editor) {
  if (!viewer) {
    QAccessible::installFactory(MakeAccessible);
    viewer = std::make_unique<HelpWindow>(editor);
  }
  dynamic_cast<HelpWindow&>(*viewer).Open(topic);
}

}  // namespace terramark::helpview
