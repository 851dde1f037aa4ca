// The help viewer, as the editor knows it.
#pragma once

#include <QWidget>
#include <cstdint>
#include <memory>

namespace terramark::helpview {

/// Shows a topic of the help in the viewer and raises that; for a number that is no topic, the
/// contents. The first call makes the viewer, beside the editor's window where the screen has room;
/// null for no editor's window. Later calls pass the viewer that the first has made.
void ShowHelp(std::unique_ptr<QWidget>& viewer, std::int32_t topic, const QWidget* editor);

}  // namespace terramark::helpview
