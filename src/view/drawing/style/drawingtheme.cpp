#include "style/contrast.h"

#include <drawing/colorscale.h>
#include <drawing/drawingtheme.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr QRgb DarkGround = 0xff1e2226;
constexpr QRgb DarkPaper = 0xff2b3036;
constexpr QRgb LightInk = 0xffe6e9ec;

struct Pair {
  QColor PlotSettings::*color;
  QRgb onDark;
};

/// The colours of the settings beside the ground, and what the usual ones are on the dark one. As on white, what matters
/// least is nearest to the ground.
constexpr Pair Usual[] = {{&PlotSettings::edgeLabelsColor, LightInk},     {&PlotSettings::nodeLabelsColor, LightInk},
                          {&PlotSettings::edgeColorInactive, 0xff6a727a}, {&PlotSettings::edgeColorNoFlow, 0xff868e96},
                          {&PlotSettings::gridMajorColor, 0xff3d444b},    {&PlotSettings::gridMinorColor, 0xff2f353b}};

int mixed(int a, int b, double share) {
  return static_cast<int>(std::lround(a + (b - a) * share));
}

/// Grey runs from the paper to the ink; what a colour has beside grey stays.
QRgb turnedOver(QRgb color) {
  constexpr int Full = 255;
  const auto [least, most] = std::minmax({qRed(color), qGreen(color), qBlue(color)});
  const int grey = (least + most) / 2;
  const double share = 1.0 - double(grey) / Full;
  const auto turn = [&](int channel, int paper, int ink) {
    return std::clamp(mixed(paper, ink, share) + channel - grey, 0, Full);
  };
  return qRgba(turn(qRed(color), qRed(DarkPaper), qRed(LightInk)), turn(qGreen(color), qGreen(DarkPaper), qGreen(LightInk)),
               turn(qBlue(color), qBlue(DarkPaper), qBlue(LightInk)), qAlpha(color));
}

} // namespace

DrawingTheme::DrawingTheme(const QColor &ground)
    : m_ground(ground)
    , m_isDark(ColorScale::isDark(ground)) {}

PlotSettings DrawingTheme::onScreen(PlotSettings settings, bool isDarkScreen) {
  static const PlotSettings OnWhite;
  if (!isDarkScreen || settings.bgrColor != OnWhite.bgrColor)
    return settings;
  settings.bgrColor = QColor(DarkGround);
  const DrawingTheme theme(settings.bgrColor);
  for (const Pair &pair : Usual) {
    QColor &color = settings.*pair.color;
    if (color == OnWhite.*pair.color)
      color = QColor(pair.onDark);
    else if (color.isValid()) // an invalid one says that nothing is drawn
      color = theme.line(color);
  }
  return settings;
}

QColor DrawingTheme::ink() const {
  return m_isDark ? QColor(LightInk) : QColor(Qt::black);
}

QColor DrawingTheme::paper() const {
  return m_isDark ? QColor(DarkPaper) : QColor(Qt::white);
}

QColor DrawingTheme::line(const QColor &color) const {
  return m_isDark ? Contrast::legible(color, m_ground, Contrast::OfLines) : color;
}

QColor DrawingTheme::text(const QColor &color, const QColor &background) const {
  return m_isDark ? Contrast::legible(color, Contrast::over(background, m_ground), Contrast::OfTexts) : color;
}

QRgb DrawingTheme::noValue() const {
  return m_isDark ? 0xff5d656d : 0xffc4c8cc;
}

QRgb DrawingTheme::plainEdge() const {
  return m_isDark ? 0xff6ea3d4 : 0xff2f5d8a;
}

QRgb DrawingTheme::plainNode() const {
  return m_isDark ? 0xff9fb0c0 : 0xff5b6b7b;
}

QRgb DrawingTheme::notFound() const {
  return m_isDark ? 0xff4a5057 : 0xffd0d4d8;
}

QColor DrawingTheme::turned(const QColor &color) const {
  return m_isDark ? QColor::fromRgba(turnedOver(color.rgba())) : color;
}

QImage DrawingTheme::turned(QImage picture) const {
  if (!m_isDark)
    return picture;
  const double ratio = picture.devicePixelRatio();
  picture = picture.convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < picture.height(); ++y) {
    auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y)); // NOLINT: which is how the pixels of this format lie
    std::transform(line, line + picture.width(), line, turnedOver);
  }
  picture.setDevicePixelRatio(ratio);
  return picture;
}
