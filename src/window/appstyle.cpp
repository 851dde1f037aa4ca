#include "window/appstyle.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QIcon>
#include <QImage>
#include <QPalette>
#include <QPixmap>
#include <QProxyStyle>
#include <QToolTip>
#include <cmath>
#include <memory>
#include <utility>

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
const QColor Pale(0xDF, 0xDF, 0xDF);
const QColor Linked(0x00, 0x00, 0x99);
const QColor Visited(0x66, 0x00, 0x66);
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

/// Every role of every group: what is left out, a dark desktop would fill in.
QPalette LightPalette() {
  const QColor face = paint::ScreenColour(forms::SysButtonFace);
  const std::pair<QPalette::ColorRole, QColor> colours[] = {
      {QPalette::WindowText, Qt::black},  {QPalette::Button, face},
      {QPalette::Light, Qt::white},       {QPalette::Midlight, Pale},
      {QPalette::Dark, Shadow},           {QPalette::Mid, Greyed},
      {QPalette::Text, Qt::black},        {QPalette::BrightText, Qt::white},
      {QPalette::ButtonText, Qt::black},  {QPalette::Base, Qt::white},
      {QPalette::Window, face},           {QPalette::Shadow, Qt::black},
      {QPalette::Highlight, Marked},      {QPalette::HighlightedText, Qt::white},
      {QPalette::Link, Linked},           {QPalette::LinkVisited, Visited},
      {QPalette::AlternateBase, Pale},    {QPalette::ToolTipBase, Hint},
      {QPalette::ToolTipText, Qt::black}, {QPalette::PlaceholderText, Greyed},
  };
  QPalette palette;
  // Roles that later versions of Qt add, such as an accent, get the colour of selections.
  for (int role = 0; role < QPalette::NColorRoles; ++role) {
    palette.setColor(QPalette::All, static_cast<QPalette::ColorRole>(role), Marked);
  }
  for (const auto& [role, colour] : colours) palette.setColor(QPalette::All, role, colour);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                          QPalette::Link, QPalette::LinkVisited, QPalette::Highlight}) {
    palette.setColor(QPalette::Disabled, role, Greyed);
  }
  return palette;
}

/// Every window has the light palette. The first button of a box is the agreeing one, on every
/// desktop. A thumb may be short: a colour bar has only a few dozen pixels of travel for 257
/// values.
class Style : public QProxyStyle {
 public:
  Style() : QProxyStyle("Fusion") {}

  using QProxyStyle::polish;
  void polish(QWidget* widget) override {
    QProxyStyle::polish(widget);
    // A desktop may set a palette for a class of widgets, which overrides the application's and is
    // overridden by the window's.
    if (widget->isWindow()) widget->setPalette(LightPalette());
  }

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

}  // namespace

void InstallStyle(QApplication& application) {
  auto style = std::make_unique<Style>();
  style->setParent(&application);
  QApplication::setStyle(style.release());
  QApplication::setPalette(LightPalette());
  QToolTip::setPalette(LightPalette());
  // This theme has icons of programs only, so that all others are the style's own, for a light
  // palette. The icons of a dark desktop would vanish on it.
  QIcon::setThemeName("hicolor");
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
