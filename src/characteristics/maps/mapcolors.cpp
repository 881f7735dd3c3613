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

void MapColors::applyTo(QPalette &palette) const {
  struct Role {
    QPalette::ColorRole role;
    QRgb onWhite;
    QRgb onDark;
  };
  constexpr Role Frame[] = {{QPalette::Light, 0xffffffff, 0xff555b63},
                            {QPalette::Midlight, 0xffcacaca, 0xff4a4f56},
                            {QPalette::Mid, 0xffb8b8b8, 0xff666c74},
                            {QPalette::Dark, 0xff9f9f9f, 0xff3c4147},
                            {QPalette::Shadow, 0xff767676, 0xff0f1113}};
  palette.setColor(QPalette::WindowText, ink());
  palette.setColor(QPalette::Text, ink());
  for (const Role &role : Frame)
    palette.setColor(role.role, QColor(m_isDark ? role.onDark : role.onWhite));
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
