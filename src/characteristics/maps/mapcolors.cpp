#include "mapcolors.h"

#include <utility>

MapColors MapColors::onScreen(const QPalette &palette) {
  constexpr int Middle = 128;
  return MapColors(palette.color(QPalette::Window).lightness() < Middle);
}

QColor MapColors::ground() const {
  return m_isDark ? QColor(0x1e, 0x22, 0x26) : QColor(Qt::white);
}

QColor MapColors::ink() const {
  return m_isDark ? QColor(0xe6, 0xe9, 0xec) : QColor(Qt::black);
}

QColor MapColors::grid() const {
  return m_isDark ? QColor(0x4a, 0x52, 0x5a) : QColor(Qt::lightGray);
}

QColor MapColors::warning() const {
  return of(Red);
}

QColor MapColors::of(const QColor &onWhite) const {
  static const std::pair<QColor, QColor> OnDark[] = {{Blue, {112, 174, 224}},
                                                     {PaleBlue, {88, 124, 154}},
                                                     {Green, {112, 196, 118}},
                                                     {Red, {244, 114, 114}},
                                                     {Orange, {238, 156, 82}}};
  for (const auto &[light, dark] : OnDark) {
    if (m_isDark && light == onWhite)
      return dark;
  }
  return onWhite;
}
