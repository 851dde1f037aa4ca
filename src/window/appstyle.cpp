#include "window/appstyle.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QIcon>
#include <QImage>
#include <QPalette>
#include <QPixmap>
#include <QProxyStyle>
#include <cmath>
#include <memory>

#include "paint/lettering.h"
#include "paint/screencolour.h"
#include "shell/icon.h"

namespace terramark::window {

namespace {

constexpr double DialogPoints = 9;
constexpr int MinThumbLength = 12;

const QColor Shadow(0x80, 0x80, 0x80);
const QColor Greyed(0x58, 0x58, 0x58);
const QColor Marked(0x00, 0x00, 0x80);
const QColor Hint(0xFF, 0xFF, 0xE1);

/// The luminance L at which black and white have the same contrast: 1.05 / (L + 0.05) = (L + 0.05)
/// / 0.05.
constexpr double MiddleLuminance = 0.179;

/// The relative luminance of an sRGB colour, 0 to 1.
double Luminance(const QColor& colour) {
  const auto light = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * light(colour.redF()) + 0.7152 * light(colour.greenF()) +
         0.0722 * light(colour.blueF());
}

/// The first button of a box is the agreeing one, on every desktop. A thumb may be short: a colour
/// bar has only a few dozen pixels of travel for 257 values.
class Style : public QProxyStyle {
 public:
  Style() : QProxyStyle("Fusion") {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_DialogButtonLayout) return QDialogButtonBox::WinLayout;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    if (metric == PM_ScrollBarSliderMin) return MinThumbLength;
    return QProxyStyle::pixelMetric(metric, option, widget);
  }
};

QPalette LightPalette() {
  const QColor face = paint::ScreenColour(forms::SysButtonFace);
  QPalette palette(Qt::black, face, Qt::white, Shadow, Greyed, Qt::black, Qt::white, Qt::white,
                   face);
  palette.setColor(QPalette::Shadow, Qt::black);
  palette.setColor(QPalette::Highlight, Marked);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, Hint);
  palette.setColor(QPalette::ToolTipText, Qt::black);
  palette.setColor(QPalette::PlaceholderText, Greyed);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, Greyed);
  }
  return palette;
}

}  // namespace

void InstallStyle(QApplication& application) {
  auto style = std::make_unique<Style>();
  style->setParent(&application);
  QApplication::setStyle(style.release());
  QApplication::setPalette(LightPalette());
  QFont font;
  font.setFamilies(paint::TextFamilies());
  font.setPointSizeF(DialogPoints);
  QApplication::setFont(font);
  application.setWindowIcon(WindowIcon());
  // The desktop finds the entry dist/desktop/terramark.desktop, and its large icon, by this name.
  QApplication::setDesktopFileName("terramark");
}

QIcon WindowIcon() {
  const forms::Picture icon = ProgramIcon();
  const QImage image(reinterpret_cast<const uchar*>(icon->Pixels.data()), icon->Width, icon->Height,
                     QImage::Format_RGB32);
  // A pixmap may share the image's memory, which is freed with the picture here.
  return QPixmap::fromImage(image.copy());
}

QColor TextColourOn(const QColor& face) {
  return Luminance(face) < MiddleLuminance ? Qt::white : Qt::black;
}

}  // namespace terramark::window
