// What parts of the windows are called by assistive tools, where their widgets do not say it.
#pragma once

#include <QString>
#include <QWidget>

#include "forms/controls.h"

namespace terramark::window {

/// A label's own name, and then its caption: "Areas 42".
QString AccessibleText(const forms::Label& label);

/// Names the scroll bars of a widget after what they scroll.
void NameScrollBars(const QWidget& widget, const QString& what);

}  // namespace terramark::window
