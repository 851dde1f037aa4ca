// The help viewer, as the editor knows it.
#pragma once

#include <QWidget>
#include <cstdint>
#include <memory>

namespace terramark::helpview {

/// Shows a topic of the help in the viewer and brings that to the front; for a number that is no
/// topic, the contents. The first call makes the viewer, beside the editor's window where the
/// screen has room; null is no editor's window. Others are given what the first has made.
void ShowHelp(std::unique_ptr<QWidget>& viewer, std::int32_t topic, const QWidget* editor);

}  // namespace terramark::helpview
