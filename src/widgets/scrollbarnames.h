// What assistive tools call the scroll bars of a widget.
#pragma once

#include <QString>
#include <QWidget>

namespace terramark::widgets {

/// Names the scroll bars of a widget after what they scroll.
void NameScrollBars(const QWidget& widget, const QString& what);

}  // namespace terramark::widgets
