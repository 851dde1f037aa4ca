// How the window looks whatever the desktop's theme: style, colours, the controls' fonts.
#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetrics>

#include "forms/color.h"
#include "forms/desktop.h"

class QApplication;
class QIcon;
class QPainter;
class QRect;

namespace terramark::window {

/// Gives the application its own light look; once, before the first widget is made.
void SetUpLook(QApplication& application);

/// The program's icon for windows.
QIcon WindowIcon();

/// A system colour or 0x00BBGGRR on the screen.
QColor ScreenColour(forms::Color colour);

/// Black or white, whichever stands out more on a face of the colour.
QColor InkOn(const QColor& face);

/// Of labels and boxes: Arial 8.25 pt bold or what has its measures, sized by the screen's twips.
QFont TextFont(forms::Desktop& host);

/// The form's own, which shows on buttons and in the captions of frames: MS Sans Serif of the same
/// size and weight, or else Arial.
QFont FormFont(forms::Desktop& host);

/// Draws one line of text into the rectangle: in the middle, or from the left with an ellipsis at
/// the place told where it does not fit.
void DrawCaption(QPainter& painter, const QRect& area, const QString& text,
                 Qt::TextElideMode cutAt);

}  // namespace terramark::window
